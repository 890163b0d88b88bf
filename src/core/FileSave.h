#pragma once

namespace gustline {

struct Application;

// The name of the tab-delimited dump of the project that every File Save writes in the
// current folder.
inline constexpr const char* kPropertiesDumpName = "Properties.txt";

// The command File Save. A changed project always goes through Save As. An unchanged one
// is written under its current name, after a question when a file of that name exists,
// with the report's page setup, and then dumped to Properties.txt. True when written;
// facility errors go to the common report.
bool FileSave(Application& app);

}  // namespace gustline
