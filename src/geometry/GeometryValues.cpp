#include "geometry/GeometryValues.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/ProcessState.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/NumberFormat.h"
#include "geometry/HeightList.h"
#include "ui/rules/CheckRule.h"

namespace gustline::geometry {
namespace {

std::string Join(const std::vector<std::string_view>& entries, std::string_view separator) {
  std::string text;
  for (const std::string_view entry : entries) {
    if (!text.empty()) text += separator;
    text += entry;
  }
  return text;
}

// The lists that run by height interval and follow `Order`.
constexpr std::string_view kListsByInterval[] = {
    "Table67Dia", "Table610Ratios", "TableSpecialProjAreas", "TableSpecialCoefficients"};

}  // namespace

GeometryValues LoadGeometry(wb::Workbook& project) {
  return {wb::ReadNamedInt(project, "Interval"), wb::ReadNamedInt(project, "Order")};
}

std::string UserIntervalsRows(std::string_view userIntervals) {
  const std::string rows = Join(CommaListEntries(userIntervals), "\r\n");
  return rows.empty() ? "1.00" : rows;
}

std::string UserIntervalsFromRows(std::string_view rows) {
  return Join(CommaListEntries(rows), " ");
}

void SetUpIntervalGrid(wb::Workbook& grid) {
  grid.SetSelection("A1:C100");
  grid.SetNumberFormat("0.00");
  grid.SetCellNumber(1, 1, 0.000001);
  grid.SetCellFormula(1, 2, "C1");
  grid.SetCellFormula(2, 1, "IF(ISNUMBER(C2),B1,\"\")");
  grid.SetCellFormula(2, 2, "IF(ISNUMBER(C2),A2+C2,\"\")");
  grid.SetSelection("A2:B100");
  grid.CopyDown();
  grid.SetSelection("C1");
}

void LoadIntervalGrid(wb::Workbook& grid, std::string_view userIntervals) {
  grid.SetSelection("C2:C100");
  grid.ClearRange(3);
  grid.SetSelection("C1");
  grid.SetClipText(UserIntervalsRows(userIntervals));
}

double SumOfLengths(wb::Workbook& grid) {
  double sum = 0;
  for (int row = 1; row <= kIntervalRows; ++row) {
    const wb::Value value = grid.CellValue(row, 3);
    if (value.IsNumber()) sum += value.AsNumber();
  }
  return sum;
}

void CancelIntervalGrid(wb::Workbook& grid, bool okPressedBefore) {
  if (okPressedBefore) return;
  grid.SetSelection("A2:B100");
  grid.ClearRange(3);
}

void CopySheetCells(wb::Workbook& from, int fromSheet, wb::Workbook& to, int toSheet) {
  const int fromActive = from.ActiveSheet();
  const int toActive = to.ActiveSheet();
  to.SetActiveSheet(toSheet);
  if (to.LastRow() > 0) {
    to.SetSelectionRC(1, 1, to.LastRow(), std::max(to.LastCol(), 1));
    to.ClearRange(3);
  }
  to.SetSelection("A1");
  from.SetActiveSheet(fromSheet);
  const int lastRow = from.LastRow();
  const int lastCol = from.LastCol();
  for (int row = 1; row <= lastRow; ++row) {
    for (int col = 1; col <= lastCol; ++col) {
      const std::string entry = from.CellEntry(row, col);
      if (!entry.empty()) to.SetCellEntry(row, col, entry);
    }
  }
  from.SetActiveSheet(fromActive);
  to.SetActiveSheet(toActive);
}

std::string ReverseCommaList(std::string_view list) {
  const bool trailingComma = !list.empty() && list.back() == ',';
  if (trailingComma) list.remove_suffix(1);
  std::vector<std::string_view> entries;
  std::size_t pos = 0;
  while (true) {
    const std::size_t comma = list.find(',', pos);
    entries.push_back(list.substr(pos, comma - pos));
    if (comma == std::string_view::npos) break;
    pos = comma + 1;
  }
  std::ranges::reverse(entries);
  return Join(entries, ",") + (trailingComma ? "," : "");
}

bool CheckSumOfLengths(Prompt& prompt, double sum) {
  std::string text = wb::FormatNumber(sum, "General");
  if (rules::CheckRange(prompt, 1, 2000, text)) return true;
  prompt.Show({"Range Error", " Sum of lengths error.", PromptIcon::Stop, PromptButtons::Ok});
  return false;
}

void ApplyGeometry(wb::Workbook& project, const GeometryValues& values, wb::Workbook& intervalGrid,
                   wb::Workbook& outlineGrid) {
  wb::WriteNamedInt(project, "Interval", values.interval);
  CopySheetCells(outlineGrid, 1, project, kProjectOutlineSheet);
  intervalGrid.SetSelection("C1:C100");
  wb::WriteNamedText(project, "UserIntervals", UserIntervalsFromRows(intervalGrid.ClipText()));
  if (values.interval == 5) wb::WriteNamedNumber(project, "Height", SumOfLengths(intervalGrid));
  if (values.order != wb::ReadNamedInt(project, "Order")) {
    wb::WriteNamedInt(project, "Order", values.order);
    for (const std::string_view name : kListsByInterval)
      wb::WriteNamedText(project, name, ReverseCommaList(wb::ReadNamedText(project, name)));
  }
}

std::optional<Message> HeightIntervalWarning(double height, int interval) {
  if (interval < 1 || interval > 4 || height > IntervalStep(interval)) return std::nullopt;
  return Message{"Gustline", "Interval Length should be less than total structure height.",
                 PromptIcon::Information, PromptButtons::Ok};
}

std::optional<IntervalQuestion> ChangingIntervalQuestion(int table, int structure, int mode,
                                                         int openedMode) {
  if ((structure != 2 && structure != 4) || mode == openedMode) return std::nullopt;
  const auto question = [](std::string_view first, std::string_view second) {
    std::string text(first);
    text.append(kCrLf).append(second);
    return Message{"Gustline", std::move(text), PromptIcon::Question, PromptButtons::YesNo};
  };
  switch (table) {
    case 2:
      return IntervalQuestion{
          question("Changing Interval makes previously defined DIAMETER values invalid.",
                   "Do you want to update DIAMETER values now?"),
          IntervalListDialog::Figure619};
    case 5:
      return IntervalQuestion{
          question("Changing Interval makes previously defined RATIOS(e) values invalid.",
                   "Do you want to update RATIO(e) values now?"),
          IntervalListDialog::Figure622};
    case 6:
      return IntervalQuestion{
          question("Changing Interval makes previously defined AREA and PRESSURE COEFFICIENT",
                   "values invalid. Do you want to update values now?"),
          IntervalListDialog::TableSpecial};
    default:
      return std::nullopt;
  }
}

}  // namespace gustline::geometry
