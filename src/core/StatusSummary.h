#pragma once

#include <string>

namespace gustline {

namespace wb {
class Workbook;
}
class ApplicationView;

inline constexpr const char* kHelpPrompt = " Press F1 for Help";

// The text of summary panel 2 to 5 from the project: " V = 90.00 mph ", " I = 1.00 ",
// " Exposure = C", " Height = 60.00 ft ". An enumeration out of its range shows no value.
std::string SummaryPanelText(wb::Workbook& project, int panel);

// The status bar in panel style: the help prompt in panel 1 and the project in 2 to 5.
void UpdateStatusSummary(wb::Workbook& project, ApplicationView& view);

}  // namespace gustline
