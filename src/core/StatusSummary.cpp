#include "core/StatusSummary.h"

#include <array>

#include "core/ApplicationView.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/NumberFormat.h"

namespace gustline {
namespace {

// The importance factor by `Category`; 4 is category I where V exceeds 100 mph.
constexpr std::array<double, 5> kImportance = {0.87, 1.0, 1.15, 1.15, 0.77};
constexpr std::array<const char*, 4> kExposureLetters = {"A", "B", "C", "D"};

}  // namespace

std::string SummaryPanelText(wb::Workbook& project, int panel) {
  switch (panel) {
    case 2:
      return " V = " + wb::FormatNumber(wb::ReadNamedNumber(project, "WindSpeed"), "0.00") +
             " mph ";
    case 3: {
      const int category = wb::ReadNamedInt(project, "Category");
      const bool known = category >= 0 && category < static_cast<int>(kImportance.size());
      return " I = " +
             (known ? wb::FormatNumber(kImportance[static_cast<std::size_t>(category)], "0.00")
                    : std::string()) +
             " ";
    }
    case 4: {
      const int exposure = wb::ReadNamedInt(project, "Exposure");
      const bool known = exposure >= 0 && exposure < static_cast<int>(kExposureLetters.size());
      return std::string(" Exposure = ") +
             (known ? kExposureLetters[static_cast<std::size_t>(exposure)] : "");
    }
    case 5:
      return " Height = " + wb::FormatNumber(wb::ReadNamedNumber(project, "Height"), "0.00") +
             " ft ";
    default:
      return {};
  }
}

void UpdateStatusSummary(wb::Workbook& project, ApplicationView& view) {
  view.SetStatusPanelStyle();
  view.SetStatusPanel(1, kHelpPrompt);
  for (int panel = 2; panel <= 5; ++panel)
    view.SetStatusPanel(panel, SummaryPanelText(project, panel));
}

}  // namespace gustline
