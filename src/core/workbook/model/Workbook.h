#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/DefinedNames.h"
#include "core/workbook/model/Sheet.h"
#include "core/workbook/value/CellStyle.h"
#include "core/workbook/value/Value.h"

namespace gustline::wb {

class RecalcState;

// File types of ReadWorkbook and WriteWorkbook.
enum class FileType : int { Text = 3, Excel5 = 4, Native = 5 };

// How PasteSelection brings cells in: as they were copied, or their results and formats.
enum class PasteMode { All, Values };

// The nine results of GetBorder: five line styles and four colours of the selection.
struct BorderInfo {
  int outline = 0, left = 0, right = 0, top = 0, bottom = 0;
  std::uint32_t leftColor = 0, rightColor = 0, topColor = 0, bottomColor = 0;
};

// A workbook with the operations that the program asks of its spreadsheet facility, under
// their names. Most operations act on the active sheet, its selection or its active cell.
// Failures raise FacilityError; calculations never do.
class Workbook {
 public:
  explicit Workbook(const std::string& bookName = "Book1");
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  std::uint64_t Id() const { return id_; }
  // Fixed in the stored data, trimmed; links in brackets match it.
  const std::string& BookName() const { return bookName_; }
  void SetBookName(const std::string& name);
  const std::string& Title() const { return title_; }
  void SetTitle(std::string title) { title_ = std::move(title); }

  // --- Sheets (numbered from 1) ---
  int SheetCount() const { return static_cast<int>(sheets_.size()); }
  int ActiveSheet() const { return activeSheet_ + 1; }
  void SetActiveSheet(int sheet);
  std::string SheetName(int sheet) const;
  void SetSheetName(int sheet, std::string name);
  bool SheetSelected(int sheet) const;
  void SetSheetSelected(int sheet, bool selected);
  void DeleteSheets(int firstSheet, int count);
  // Appends a sheet; returns its number.
  int AddSheet(std::string name);
  // The sheet number of a name (without regard to case), or 0.
  int FindSheet(std::string_view name) const;
  Sheet& GetSheet(int sheet);
  const Sheet& GetSheet(int sheet) const;
  // The sheet with a given id, or nullptr (formulas refer to sheets by id).
  Sheet* SheetById(std::uint32_t id);
  int SheetIndexById(std::uint32_t id) const;  // 0-based, -1 when gone

  // --- Selection and active cell of the active sheet ---
  // An A1 range ("A1:C16384", "$B$87", "Sheet3!A1") or a defined name, which also makes
  // the name's sheet active. Unknown names and bad texts raise FacilityError.
  void SetSelection(std::string_view rangeOrName);
  // The selection as absolute A1 text, "$B$87" or "$A$1:$C$16".
  std::string Selection() const;
  int SelFirstRow() const;
  int SelLastRow() const;
  int SelFirstCol() const;
  int SelLastCol() const;
  void SetSelFirstRow(int row);
  void SetSelLastRow(int row);
  void SetSelFirstCol(int col);
  void SetSelLastCol(int col);
  // All four -1 selects the whole sheet.
  void SetSelectionRC(int firstRow, int firstCol, int lastRow, int lastCol);
  int ActiveRow() const;
  int ActiveCol() const;
  void SetActiveRow(int row);
  void SetActiveCol(int col);
  // Moves the active cell and the selection to the cell.
  void SetActiveCell(int row, int col);
  int TopRow() const;
  void SetTopRow(int row);
  int LeftCol() const;
  void SetLeftCol(int col);
  int MaxRow() const;
  void SetMaxRow(int rows);
  int LastRow() const;
  int LastCol() const;

  // --- Cells of the active sheet ---
  // The value (a formula's result); text in a cell reads as 0.
  double CellNumber(int row, int col);
  void SetCellNumber(int row, int col, double number);
  // The display text on read; a text constant on write.
  std::string CellText(int row, int col);
  void SetCellText(int row, int col, std::string_view text);
  // As typed: "=..." is a formula, a text that reads as a number is a number, else text.
  std::string CellEntry(int row, int col);
  void SetCellEntry(int row, int col, std::string_view entry);
  // The formula text without "=", or the constant as typed for a cell without formula.
  std::string CellFormula(int row, int col);
  // Parses the text again and rebinds its links; raises FacilityError when it does not parse.
  void SetCellFormula(int row, int col, std::string_view formula);
  // SetCellFormula(row, col, CellFormula(row, col)) in effect, without the text where the
  // formula's sheets, links and names can be bound again directly.
  void ReenterFormula(int row, int col);
  // The value of a cell as a Value (for tools and tests).
  Value CellValue(int row, int col);
  void SetActiveFormula(std::string_view formula);

  // --- Blocks ---
  void SetNumberFormat(std::string_view format);  // of the selection
  // Writes a block from the selection's top left: fields at TAB, rows at CR LF (or LF);
  // a field that reads as a number becomes a number. All rows are written.
  void SetClipText(std::string_view text);
  // The selection's cells as shown, fields at TAB and rows at CR LF: what SetClipText
  // writes back. Rows below the sheet's last used row are left out.
  std::string ClipText();
  // Fills the rows of the selection from its first row, formulas and formats.
  void CopyDown();
  // 1: everything; 3: values and formulas only, keeping formats.
  void ClearRange(int what);
  // The engine's clipboard, one for the process. A cut clears its source at once; a paste
  // writes the whole copied block from the selection's top left.
  void CopySelection();
  void CutSelection();
  void PasteSelection(PasteMode mode = PasteMode::All);
  BorderInfo GetBorder() const;
  // -1 leaves a field as it is.
  void SetBorder(int outline, int left, int right, int top, int bottom, int shade,
                 std::int64_t outlineColor, std::int64_t leftColor, std::int64_t rightColor,
                 std::int64_t topColor, std::int64_t bottomColor);
  void SetRowHidden(int row, bool hidden);
  bool RowHidden(int row) const;
  void HideRows(int firstRow, int lastRow, bool hidden);
  void SetColumnWidth(int firstCol, int lastCol, double width);
  // The style of a cell of the active sheet, and its replacement (for the file formats,
  // the renderer and the workbook builders).
  const CellStyle& GetCellStyle(int row, int col) const;
  void SetCellStyle(int row, int col, const CellStyle& style);
  StyleTable& Styles() { return styles_; }
  const StyleTable& Styles() const { return styles_; }

  // --- Names ---
  // Defines or redefines a name, e.g. ("Table66RoofType", "Sheet1!$B$87").
  void SetDefinedName(std::string_view name, std::string_view refersTo);
  // The text a name refers to, or nullopt.
  std::optional<std::string> DefinedName(std::string_view name) const;
  int NameCount() const;
  std::string NameAt(int index) const;  // 1-based
  // The sheet (1-based) and area a name or an A1 text refers to; nullopt when it does not.
  std::optional<std::pair<int, Area>> ResolveReference(std::string_view rangeOrName);
  DefinedNames& Names() { return names_; }
  const DefinedNames& Names() const { return names_; }

  // --- Whole book ---
  void ClearAll();  // one empty sheet, "Sheet1"; no names
  // Replaces the title, sheets, names, styles and calculation settings by a copy of another
  // book's; the book keeps its id and name. The formulas, which neither book changes, are
  // shared; they stay bound to the sheet ids and name slots that come with them. Slots of
  // this book past the other's stay, undefined, for the formulas bound to them.
  void CopyContentOf(const Workbook& other);
  // Replaces the whole book by the file, all but its name; returns the type read. On failure
  // the book is as it was.
  FileType ReadWorkbook(const std::string& path);
  // Native writes the book; Text writes the active sheet's display texts. Atomic.
  void WriteWorkbook(const std::string& path, FileType type);
  void SaveWindowInfo();

  // --- Calculation ---
  void Recalc();
  // True when the last Recalc left values that another would keep (volatile functions
  // apart): every group of it settled in one pass, none needed iteration.
  bool RecalcSettled() const;
  bool AutoRecalc() const { return autoRecalc_; }
  void SetAutoRecalc(bool on);
  void SetIteration(bool on, int maxIterations, double maxChange);
  bool IterationOn() const { return iterationOn_; }
  int MaxIterations() const { return maxIterations_; }
  double MaxChange() const { return maxChange_; }
  // Brings cached results up to date when the book calculates automatically and anything
  // it may read has changed since its last calculation. Reads call it.
  void EnsureCalculated();
  // Moves at every change of the book's values or formulas, its calculation's included, so
  // that a book linking to it can tell that it has changed.
  std::uint64_t ChangeCount() const { return changeCount_; }

  // --- Display ---
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer) { mousePointer_ = pointer; }

  // Called by every change of cells, formulas, names or sheets. `structural` is true when
  // the dependencies between cells may have changed (a formula, a name, a sheet).
  void NoteChange(bool structural);

 private:
  Sheet& Active() { return *sheets_[static_cast<std::size_t>(activeSheet_)]; }
  const Sheet& Active() const { return *sheets_[static_cast<std::size_t>(activeSheet_)]; }
  FormulaHost HostOf(int row, int col) { return FormulaHost{this, activeSheet_, {row, col}}; }
  // Puts a constant into a cell of the active sheet; an empty value clears the content and
  // keeps the format. Writing the constant that is there already changes nothing.
  void StoreConstant(int row, int col, Value value);

  std::uint64_t id_;
  std::string bookName_;
  std::string title_;
  std::vector<std::unique_ptr<Sheet>> sheets_;
  std::uint32_t nextSheetId_ = 1;
  int activeSheet_ = 0;
  StyleTable styles_;
  DefinedNames names_;
  bool autoRecalc_ = true;
  bool iterationOn_ = false;
  int maxIterations_ = 100;
  double maxChange_ = 0.001;
  int mousePointer_ = 1;
  std::uint64_t changeCount_ = 1;
  std::unique_ptr<RecalcState> recalc_;  // owned by the calculation; see Recalc.h
  friend class RecalcState;
};

}  // namespace gustline::wb
