#include "ui/WindDataSections.h"

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {

std::string SectionName(std::string_view caption) {
  std::string name;
  for (const char c : caption)
    if (c != ' ') name += c;
  if (name == "PhysicalProperties") return "PhysicalProp";
  if (name == "FiguresAndTables") return "FiguresTables";
  return name;
}

bool GoToSection(wb::Workbook& project, std::string_view caption) {
  try {
    project.SetSelection(SectionName(caption));
  } catch (const wb::FacilityError&) {
    return false;
  }
  project.SetTopRow(project.SelFirstRow());
  return true;
}

void SetInspectorPrintArea(wb::Workbook& project) {
  project.GetSheet(1).Print().printArea = "A1:b109";
}

}  // namespace gustline
