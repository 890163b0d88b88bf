#pragma once

namespace gustline {

struct Application;

// The command File Open: offers to save a changed project, asks for a file and reads it by
// its extension, a project (which goes on the recent list) or a template (which opens as
// an unsaved project named after it); a name of any other type reads nothing. Then the
// report is built again and takes the project's page setup. False when cancelled or when
// the file did not open: the project, its name and the caption are then as they were, and
// the user has been told.
bool FileOpen(Application& app);

// Opens entry 0 to 3 of the recent list, which moves to the top. The report keeps its page
// setup, which the project takes over. Nothing happens for the "(Empty)" entry. Failures
// as for File Open.
bool OpenRecentFile(Application& app, int entry);

}  // namespace gustline
