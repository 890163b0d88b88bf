#pragma once

#include <ostream>

namespace gustline::wb {

class Workbook;

// Tab-delimited text (file type 3): the active sheet from row 1 to LastRow and column 1 to
// LastCol, each field its display text, fields at TAB, rows ended by CR LF. Written only:
// the program never reads such a file back.
void WriteText(Workbook& book, std::ostream& out);

}  // namespace gustline::wb
