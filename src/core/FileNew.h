#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gustline {

struct Application;
namespace wb {
class Workbook;
}

// The keys of the new-project chooser, in its order: "Normal" first, which changes
// nothing, then "MWFRS Figure 6-10" ... "OBOS Special Case Flexible".
const std::vector<std::string>& NewProjectPresetKeys();

// Writes the named cells of a preset (System, Structure, Figure, Table, GustType,
// Table66RoofType and Height, as far as the preset sets them). The key is compared
// without its leading and trailing blanks; "Normal" and an unknown key write nothing.
void ApplyNewProjectPreset(wb::Workbook& project, std::string_view key);

// Shows the chooser modally; the key chosen, or nullopt when it was cancelled.
using NewProjectChooser = std::function<std::optional<std::string>()>;

// The command File New: offers to save a changed project (through Save As), asks for a
// preset, reads the active template as the next untitled project, writes the preset and
// builds the report. False when cancelled or when the template did not read; the project
// is then as it was, and a facility error has gone to the common report.
bool FileNew(Application& app, const NewProjectChooser& chooseNewProject);

}  // namespace gustline
