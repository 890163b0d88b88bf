#include "NoReportReason.h"

#include <variant>

#include "report/ReportSelection.h"

namespace gustline::cli {

std::string NoReportReason(wb::Workbook& project) {
  const report::SelectionInputs in = report::ReadSelectionInputs(project);
  const report::Selection selection = report::SelectTemplate(in);
  if (std::holds_alternative<report::RangeRefusal>(selection))
    return "the project failed the range check above";
  if (const auto* chosen = std::get_if<report::ChosenTemplate>(&selection))
    return "the template " + chosen->id.name + " could not be built";
  return "no template fits System=" + std::to_string(in.system) +
         " Structure=" + std::to_string(in.structure) + " Figure=" + std::to_string(in.figure) +
         " Table=" + std::to_string(in.table) + " GustType=" + std::to_string(in.gustType);
}

}  // namespace gustline::cli
