#include "report/TemplateCheck.h"

#include <cmath>
#include <memory>
#include <utility>

#include "core/Prompt.h"
#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Value.h"
#include "report/HeadlessReport.h"

namespace gustline::report {
namespace {

// One run of the program for a case: the default project, the case's inputs so far, and
// the report built from them.
struct ProgramRun {
  explicit ProgramRun(const std::string& programFolder) : program(programFolder, prompt) {}
  ScriptedPrompt prompt;
  HeadlessReport program;
  std::string templateName;
};

std::string Messages(const ScriptedPrompt& prompt) {
  std::string text;
  for (const Message& message : prompt.messages)
    text += (text.empty() ? "" : "; ") + ("[" + message.title + "] " + message.text);
  return text;
}

struct CellPlace {
  int sheet = 0;
  int row = 0;
  int col = 0;
};

std::string Quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string CellName(wb::Workbook& report, const CellPlace& cell) {
  return "'" + report.SheetName(cell.sheet) + "'!" + wb::CellRefText(cell.row, cell.col, false);
}

// The cell of a place; nullopt with the reason when the report has none.
std::optional<CellPlace> FindCell(wb::Workbook& report, const CheckPlace& place,
                                  std::string& reason) {
  if (!place.reference.empty()) {
    const auto found = report.ResolveReference(place.reference);
    if (!found) {
      reason = "the report has no cell " + place.written;
      return std::nullopt;
    }
    return CellPlace{found->first, found->second.firstRow, found->second.firstCol};
  }
  const int sheet = report.FindSheet(place.sheet);
  if (sheet == 0) {
    reason = "the report has no sheet " + Quoted(place.sheet);
    return std::nullopt;
  }
  report.SetActiveSheet(sheet);
  int seen = 0;
  for (int row = 1; row <= report.LastRow(); ++row) {
    if (report.CellText(row, place.labelColumn) != place.label || ++seen < place.occurrence)
      continue;
    if (row + place.rowOffset >= 1) return CellPlace{sheet, row + place.rowOffset, place.column};
    reason = place.written + " is above the first row";
    return std::nullopt;
  }
  const std::string rows =
      Quoted(place.label) + " in column " + wb::ColumnLetters(place.labelColumn);
  reason = place.occurrence == 1 ? "no row of " + Quoted(place.sheet) + " shows " + rows
                                 : Quoted(place.sheet) + " has fewer than " +
                                       std::to_string(place.occurrence) + " rows that show " + rows;
  return std::nullopt;
}

// The failure of an expect, empty when it holds.
std::string CheckValueAt(wb::Workbook& report, const ExpectValue& expect) {
  std::string reason;
  const auto cell = FindCell(report, expect.place, reason);
  if (!cell) return reason;
  report.SetActiveSheet(cell->sheet);
  const wb::Value value = report.CellValue(cell->row, cell->col);
  const CheckValue& expected = expect.value;
  std::string wanted, got;
  if (expected.hidden) {
    const bool hidden = report.RowHidden(cell->row);
    if (hidden == *expected.hidden) return {};
    wanted = hidden ? "a shown row" : "a hidden row";
    got = hidden ? "a hidden one" : "a shown one";
  } else if (expected.number) {
    if (value.IsNumber() && std::abs(value.AsNumber() - *expected.number) <= expected.tolerance)
      return {};
    wanted = wb::FormatShortest(*expected.number);
    if (expected.tolerance > 0) wanted += " (±" + wb::FormatShortest(expected.tolerance) + ")";
    got = value.IsNumber() ? wb::FormatShortest(value.AsNumber())
                           : Quoted(report.CellText(cell->row, cell->col));
  } else {
    const std::string shown = report.CellText(cell->row, cell->col);
    if (shown == expected.text) return {};
    wanted = Quoted(expected.text);
    got = Quoted(shown);
  }
  return "expected " + wanted + ", got " + got + " in " + CellName(report, *cell);
}

class CaseRunner {
 public:
  CaseRunner(const std::string& path, const std::string& programFolder, CheckRun& run)
      : path_(path), programFolder_(programFolder), run_(run) {}

  // False when the case cannot go on.
  bool Step(const CheckStep& step) {
    if (const auto* set = std::get_if<SetInput>(&step.action)) {
      sets_.push_back({step.line, set});
      built_.reset();
      return true;
    }
    ++run_.checks;
    if (!built_ && !Build(step.line)) return false;
    if (const auto* expected = std::get_if<ExpectTemplate>(&step.action)) {
      if (built_->templateName != expected->name)
        Fail(step.line, "expected template " + expected->name + ", got " + built_->templateName);
      return true;
    }
    const std::string failure =
        CheckValueAt(built_->program.Report(), std::get<ExpectValue>(step.action));
    if (!failure.empty()) Fail(step.line, failure);
    return true;
  }

 private:
  void Fail(int line, std::string message) {
    run_.failures.push_back(CheckFailure{path_, line, std::move(message)});
  }

  // A fresh run of the program with the inputs so far, as the command line would make it.
  bool Build(int line) {
    auto run = std::make_unique<ProgramRun>(programFolder_);
    try {
      run->program.ReadProject(std::nullopt);
    } catch (const wb::FacilityError& error) {
      Fail(line, std::string("the default project cannot be read: ") + error.what());
      return false;
    }
    for (const auto& [setLine, set] : sets_) {
      wb::Workbook& project = run->program.Project();
      try {
        // A cell without a sheet is one of Sheet1, whichever sheet the last input was on.
        project.SetActiveSheet(1);
        if (set->quoted)
          wb::WriteNamedText(project, set->name, set->value);
        else
          WriteProjectInput(project, set->name, set->value);
      } catch (const wb::FacilityError& error) {
        Fail(setLine, "set " + set->name + ": " + error.what());
        return false;
      }
    }
    run->templateName = run->program.CreateReport();
    if (run->templateName.empty()) {
      const std::string messages = Messages(run->prompt);
      Fail(line, "no report was built" + (messages.empty() ? "" : ": " + messages));
      return false;
    }
    built_ = std::move(run);
    return true;
  }

  const std::string& path_;
  const std::string& programFolder_;
  CheckRun& run_;
  std::vector<std::pair<int, const SetInput*>> sets_;
  std::unique_ptr<ProgramRun> built_;
};

}  // namespace

std::string CheckFailure::Text() const {
  return path + ":" + std::to_string(line) + ": " + message;
}

CheckRun RunCheckFile(const CheckFile& file, const std::string& programFolder) {
  CheckRun run;
  for (const CheckCase& checkCase : file.cases) {
    CaseRunner runner(file.path, programFolder, run);
    for (const CheckStep& step : checkCase.steps)
      if (!runner.Step(step)) break;
  }
  return run;
}

}  // namespace gustline::report
