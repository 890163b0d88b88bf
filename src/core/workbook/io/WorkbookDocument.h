#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/SheetSetup.h"
#include "core/workbook/value/CellStyle.h"
#include "core/workbook/value/Value.h"

namespace gustline::wb {

class Workbook;

// A workbook as plain data, between a file and a live book: the reader fills one and checks
// it whole before the book is touched, the writer takes one from the book.

struct CellRecord {
  CellAddress address;
  std::uint32_t style = 0;             // 0 the default, else 1-based into WorkbookDocument::styles
  Value value;                         // the constant, or the formula's cached result
  std::optional<std::string> formula;  // without "=", as FormulaText prints it
};

struct SheetRecord {
  std::string name;
  double defaultWidth = 8.43;
  std::map<int, double> columnWidths;
  std::vector<int> hiddenRows;  // ascending
  PrintSetup print;
  DisplaySwitches display;
  Area selection;
  CellAddress active;
  int topRow = 1;
  int leftCol = 1;
  int maxRow = kMaxRow;
  bool selected = false;
  std::vector<SheetObject> objects;
  std::vector<CellRecord> cells;  // row-major
};

struct NameRecord {
  std::string name;
  std::string refersTo;
};

struct WorkbookDocument {
  std::string bookName;  // the name of the book written; a read does not apply it
  std::string title;
  bool autoRecalc = true;
  bool iterationOn = false;
  int maxIterations = 100;
  double maxChange = 0.001;
  int activeSheet = 1;
  std::vector<NameRecord> names;  // in the book's order
  std::vector<CellStyle> styles;  // those the cells use, numbered from 1 in order of first use
  std::vector<SheetRecord> sheets;
};

// The book's content; styles renumbered by first use in row-major order over the sheets.
WorkbookDocument CaptureDocument(Workbook& book);

// Replaces the book's content by the document. The book keeps its own name: other books
// find it by that name, whatever name the document was written under. Raises FacilityError
// when a part does not apply (a formula that does not parse, a sheet name the book refuses);
// the book may then be half written, so the reader applies to a scratch book first.
void ApplyDocument(const WorkbookDocument& document, Workbook& book);

// The same for a document read from a file: applied to a scratch book of the same name
// first, so that a part that does not apply raises FacilityError(errc::kFileCorrupt) and
// leaves the book exactly as it was.
void ApplyReadDocument(const WorkbookDocument& document, Workbook& book);

}  // namespace gustline::wb
