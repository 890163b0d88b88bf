#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "SourceText.h"
#include "core/workbook/address/CellAddress.h"
#include "core/workbook/value/CellStyle.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::books {

// Builds a workbook from its sources: a book file that declares the sheets and places
// blocks, and the block files (".cells") with their rows, grids, names and parameters.
// The format is described in docs/workbook-sources.md. Faults raise SourceError.
class BookAssembler {
 public:
  explicit BookAssembler(wb::Workbook& book) : book_(book) {}

  // Reads the book file and everything it includes into the workbook.
  void ReadBook(const std::filesystem::path& bookFile);
  // Checks every placed formula once all names exist.
  void CheckFormulas() const;

 private:
  // Where the lines of one file land: its sheet (1-based, 0 for none) and the cell that
  // stands for A1 of a block.
  struct Frame {
    std::filesystem::path file;
    bool isBook = false;
    int sheet = 0;
    int anchorRow = 1;
    int anchorCol = 1;
    int depth = 0;
  };
  enum class Section { None, Rows, Grid };
  struct Placement {
    int sheet = 0;
    int row = 0;
    int col = 0;
  };
  // A range of a sheet, as a sheet cell range.
  struct PlacedArea {
    int sheet = 0;
    wb::Area area;
  };
  // The next grid row, as authored in its file.
  struct GridCursor {
    int row = 1;
    int col = 1;
  };
  struct PlacedFormula {
    Placement at;
    SourceLocation where;
  };

  // A built book opens on A1 of its first sheet.
  void ShowFirstSheet() const;
  void Run(const std::vector<SourceLine>& lines, const Frame& frame);
  void Directive(const SourceLine& line, const std::vector<std::string>& words, Frame& frame,
                 Section& section, GridCursor& grid);
  void Include(const SourceLine& line, std::vector<std::string> words, const Frame& outer);
  // The block file of an include: beside the including file, beside the book, or in a
  // library folder, the first found.
  std::filesystem::path FindBlock(const SourceLine& line, const std::string& block,
                                  const Frame& outer) const;
  void DeclareSheet(const SourceLine& line, const std::string& name);
  void AddLibrary(const SourceLine& line, const std::vector<std::string>& words,
                  const Frame& frame);
  void AllowUndefined(const SourceLine& line, const std::vector<std::string>& words);

  // The layout directives (BookLayout.cpp).
  void SetColumns(const SourceLine& line, std::vector<std::string> words, const Frame& frame);
  void SetStyle(const SourceLine& line, std::vector<std::string> words, const Frame& frame);
  void HideRows(const SourceLine& line, std::vector<std::string> words, const Frame& frame);
  void SetPage(const SourceLine& line, std::vector<std::string> words, const Frame& frame);
  void SetDefaultFont(const SourceLine& line, const std::vector<std::string>& words);
  // The sheets a 'columns' or 'page' line acts on, with the sheet word taken out of `words`:
  // in a book the sheet it names, or all for "*"; in a page block the block's own sheet.
  std::vector<int> SheetsNamed(const SourceLine& line, std::vector<std::string>& words,
                               const Frame& frame);
  void DefineNameDirective(const SourceLine& line, const Frame& frame);
  void PlaceRow(const SourceLine& line, const Frame& frame);
  void PlaceGridRow(const SourceLine& line, const Frame& frame, GridCursor& grid);
  // "table CELL FILE ROW-KEY COLUMN-KEY VALUE [where COLUMN=VALUE ...]": a grid read from
  // a comma-separated file beside the source, column keys right of CELL, row keys below it.
  void PlaceTable(const SourceLine& line, std::vector<std::string> words, const Frame& frame);
  void FillRange(const SourceLine& line, std::vector<std::string> words, const Frame& frame);

  // A cell text of the frame ("B4", or "Sheet3!B4" in a book) as a sheet cell.
  Placement Locate(const SourceLocation& where, const std::string& text, const Frame& frame,
                   int* authoredRow = nullptr, int* authoredCol = nullptr) const;
  // A range text of the frame ("B4:C6", or "Sheet3!B4:C6" in a book) as a sheet range.
  PlacedArea LocateArea(const SourceLocation& where, const std::string& text,
                        const Frame& frame) const;
  // The sheet and its text after the "!" of a book's "Sheet3!B4" or "'Page 1'!B4"; in a
  // block, the frame's sheet and the whole text.
  std::pair<int, std::string> SplitSheet(const SourceLocation& where, const std::string& text,
                                         const Frame& frame) const;
  int SheetNumber(const SourceLocation& where, const std::string& name) const;
  bool IsSheet(std::string_view name) const;

  void Claim(const Placement& at, const SourceLocation& where);
  void PutText(const Placement& at, const std::string& text, const SourceLocation& where);
  void PutNumber(const Placement& at, double number, const SourceLocation& where);
  // A formula written for its authored cell, placed at `at` with relative references
  // following the placement.
  void PutFormula(const Placement& at, int authoredRow, int authoredCol, std::string_view formula,
                  const SourceLocation& where);
  // As typed: quoted is text, "=" a formula, a number a number, anything else text.
  void PutEntry(const Placement& at, int authoredRow, int authoredCol, const Field& entry,
                const SourceLocation& where);
  void MakeBold(const Placement& at);
  // The style a cell starts from: its own, or the book's default font while it has none.
  wb::CellStyle StyleOf(const Placement& at) const;
  void DefineName(const std::string& name, const std::string& refersTo,
                  const SourceLocation& where);

  wb::Workbook& book_;
  int declaredSheets_ = 0;
  std::map<std::tuple<int, int, int>, SourceLocation> written_;
  std::map<std::string, SourceLocation> names_;      // upper-cased
  std::map<std::string, SourceLocation> undefined_;  // upper-cased
  std::filesystem::path bookDir_;
  std::vector<std::filesystem::path> libraries_;
  std::optional<wb::CellStyle> defaultStyle_;
  std::vector<PlacedFormula> formulas_;
};

}  // namespace gustline::books
