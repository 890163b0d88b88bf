#include "core/workbook/io/WorkbookDocument.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Utf8.h"

namespace gustline::wb {
namespace {

// The formulas that a sheet's cells share: a cell whose text is what the formula of the
// cell above or to its left prints at this cell takes that formula, as CopyDown leaves a
// column, instead of a parse of its own. Cells come in row-major order.
class SharedFormulas {
 public:
  std::shared_ptr<const Formula> Of(const std::string& text, const FormulaHost& host) {
    const auto col = static_cast<std::size_t>(host.cell.col);
    if (above_.size() <= col) above_.resize(col + 1);
    if (host.cell.row != row_) left_.reset();
    row_ = host.cell.row;
    std::shared_ptr<const Formula> formula;
    for (const auto* candidate : {&above_[col], &left_}) {
      if (*candidate && FormulaText(**candidate, host) == text) {
        formula = *candidate;
        break;
      }
    }
    if (!formula) formula = ParseFormula(text, host);
    above_[col] = formula;
    left_ = formula;
    return formula;
  }

 private:
  std::vector<std::shared_ptr<const Formula>> above_;  // by column
  std::shared_ptr<const Formula> left_;
  int row_ = 0;
};

SheetRecord CaptureLayout(const Sheet& sheet) {
  SheetRecord record;
  record.name = sheet.Name();
  record.defaultWidth = sheet.DefaultColumnWidth();
  record.columnWidths = sheet.ColumnWidths();
  record.hiddenRows = sheet.HiddenRows();
  record.print = sheet.Print();
  record.display = sheet.Display();
  record.selection = sheet.selection;
  record.active = sheet.active;
  record.topRow = sheet.topRow;
  record.leftCol = sheet.leftCol;
  record.maxRow = sheet.maxRow;
  record.selected = sheet.selected;
  record.objects = sheet.Objects();
  return record;
}

void ApplyLayout(const SheetRecord& record, Sheet& sheet) {
  sheet.SetDefaultColumnWidth(record.defaultWidth);
  for (const auto& [col, width] : record.columnWidths) sheet.SetColumnWidth(col, width);
  for (const int row : record.hiddenRows) sheet.SetRowHidden(row, true);
  sheet.Print() = record.print;
  sheet.Display() = record.display;
  sheet.selection = record.selection;
  sheet.active = record.active;
  sheet.topRow = record.topRow;
  sheet.leftCol = record.leftCol;
  sheet.maxRow = record.maxRow;
  sheet.selected = record.selected;
  sheet.Objects() = record.objects;
}

}  // namespace

WorkbookDocument CaptureDocument(Workbook& book) {
  WorkbookDocument document;
  document.bookName = book.BookName();
  document.title = book.Title();
  document.autoRecalc = book.AutoRecalc();
  document.iterationOn = book.IterationOn();
  document.maxIterations = book.MaxIterations();
  document.maxChange = book.MaxChange();
  document.activeSheet = book.ActiveSheet();
  for (const int slot : book.Names().DefinedOrder()) {
    const DefinedNames::Entry& entry = book.Names().At(slot);
    document.names.push_back({entry.name, entry.refersTo});
  }

  // Only the styles that cells use are kept, numbered by first use, so that the same
  // content gives the same numbers whatever the history of the book's style table.
  std::unordered_map<std::uint32_t, std::uint32_t> renumbered;
  const StyleTable& styles = book.Styles();
  auto styleOf = [&](std::uint32_t index) -> std::uint32_t {
    if (index >= styles.Size() || styles.Get(index) == CellStyle{}) return 0;
    const auto [it, added] =
        renumbered.try_emplace(index, static_cast<std::uint32_t>(document.styles.size() + 1));
    if (added) document.styles.push_back(styles.Get(index));
    return it->second;
  };

  for (int sheetNumber = 1; sheetNumber <= book.SheetCount(); ++sheetNumber) {
    const Sheet& sheet = book.GetSheet(sheetNumber);
    SheetRecord record = CaptureLayout(sheet);
    sheet.ForEachCell([&](int row, int col, const Cell& cell) {
      const std::uint32_t style = styleOf(cell.style);
      if (!cell.HasContent() && style == 0) return;
      CellRecord cellRecord{{row, col}, style, cell.value, std::nullopt};
      if (cell.IsFormula())
        cellRecord.formula = FormulaText(*cell.formula, {&book, sheetNumber - 1, {row, col}});
      record.cells.push_back(std::move(cellRecord));
    });
    document.sheets.push_back(std::move(record));
  }
  return document;
}

void ApplyDocument(const WorkbookDocument& document, Workbook& book) {
  book.ClearAll();
  book.Styles().Clear();
  // Set on the empty book, so that nothing is calculated now: a book that calculates
  // automatically does so at its first read, and a manual one keeps the stored results.
  book.SetAutoRecalc(document.autoRecalc);
  book.SetTitle(document.title);
  book.SetIteration(document.iterationOn, document.maxIterations, document.maxChange);

  // Every sheet exists before any formula is parsed, so that references to later sheets bind.
  for (std::size_t i = 0; i < document.sheets.size(); ++i) {
    if (i == 0)
      book.SetSheetName(1, document.sheets[0].name);
    else
      book.AddSheet(document.sheets[i].name);
  }
  for (const NameRecord& name : document.names) book.SetDefinedName(name.name, name.refersTo);

  std::vector<std::uint32_t> styleIndex{0};
  for (const CellStyle& style : document.styles) styleIndex.push_back(book.Styles().Intern(style));

  for (std::size_t i = 0; i < document.sheets.size(); ++i) {
    const SheetRecord& record = document.sheets[i];
    const int sheetIndex = static_cast<int>(i);
    Sheet& sheet = book.GetSheet(sheetIndex + 1);
    ApplyLayout(record, sheet);
    SharedFormulas shared;
    for (const CellRecord& cellRecord : record.cells) {
      Cell& cell = sheet.At(cellRecord.address.row, cellRecord.address.col);
      cell.style = styleIndex[cellRecord.style];
      cell.value = cellRecord.value;
      if (cellRecord.formula)
        cell.formula = shared.Of(*cellRecord.formula, {&book, sheetIndex, cellRecord.address});
    }
  }
  book.SetActiveSheet(document.activeSheet);
  book.NoteChange(true);
}

void ApplyReadDocument(const WorkbookDocument& document, Workbook& book) {
  // A book of the same name takes the content first: a formula that does not parse or a
  // name the engine refuses shows there, and the real book stays untouched.
  Workbook scratch(book.BookName());
  // With the book's name slots, which formulas of other books are bound to.
  scratch.Names() = book.Names();
  try {
    ApplyDocument(document, scratch);
  } catch (const std::exception& error) {
    throw FacilityError(errc::kFileCorrupt,
                        "The workbook file is damaged: " + PrintableText(error.what()));
  }
  book.CopyContentOf(scratch);
}

}  // namespace gustline::wb
