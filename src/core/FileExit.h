#pragma once

namespace gustline {

struct Application;

// Removes the temporary files of the templates on ContainerA, ContainerB, ContainerF and
// ContainerD. Those of ContainerG stay on disk after the run.
void DeleteTemporaryBooks(Application& app);

// The command File Exit, which the window's close request also becomes: offers to save a
// changed project, writes the settings and removes the temporary files. True when the
// program may end; false when the user cancelled or a write failed, already reported.
bool FileExit(Application& app);

}  // namespace gustline
