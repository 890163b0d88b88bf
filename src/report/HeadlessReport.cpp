#include "report/HeadlessReport.h"

#include "core/StartUp.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Value.h"

namespace gustline::report {

HeadlessReport::HeadlessReport(const std::string& programFolder, Prompt& prompt)
    : app_{state_, view_, prompt, settings_, generator_} {
  state_.applicationPath = programFolder;
}

void HeadlessReport::ReadProject(const std::optional<std::string>& path) {
  Project().ReadWorkbook(path.value_or(CarriedProjectPath(state_.applicationPath)));
  RecreateLateNames(Project());
}

std::string HeadlessReport::CreateReport() {
  Project().Recalc();
  generator_.CreateReport(app_);
  return generator_.LastBuildMadeReport() ? generator_.TemplateName() : std::string();
}

void WriteProjectInput(wb::Workbook& project, std::string_view name, std::string_view value) {
  if (const auto number = wb::ReadNumber(value))
    wb::WriteNamedNumber(project, name, *number);
  else
    wb::WriteNamedText(project, name, value);
}

}  // namespace gustline::report
