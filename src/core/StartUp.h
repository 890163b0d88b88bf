#pragma once

#include <string>
#include <string_view>

namespace gustline {

struct Application;
class ProcessState;
namespace wb {
class Workbook;
}

// The project workbook that the program carries, in its folder.
std::string CarriedProjectPath(std::string_view applicationPath);

// The file named by the command line: the trimmed text without its first and last
// character, which are taken to be quotes without looking; empty for an empty text.
std::string CommandLineFileName(std::string_view commandLine);

// Flags of a fresh project and the default page setup.
void ResetProjectState(ProcessState& state);

// Reads the carried project, names the first untitled project, builds its report and fills
// the status bar, with the progress bar counting up. Facility errors propagate: without
// its project the program cannot run.
void InitializeApplication(Application& app, const std::string& programFolder);

// Rebuilds NORMAL.GLT, reads the active template (falling back to NORMAL.GLT), applies the
// settings and opens the file named by the command line. Facility errors propagate.
void LoadStartupSettings(Application& app, std::string_view commandLine);

// The names that projects and templates of earlier versions lack; defined at every start.
void RecreateLateNames(wb::Workbook& project);

// The whole start, from the splash to the running window. A facility error after the first
// report goes to the common error report and the start goes on.
void StartApplication(Application& app, const std::string& programFolder,
                      std::string_view commandLine);

}  // namespace gustline
