#pragma once

#include <ostream>
#include <string>

namespace gustline::wb {

class Workbook;

// Excel 5.0 workbook (file type 4): every sheet of the book with the values of its cells
// (a formula gives its result), texts in code page 1252 and cut to 255 characters, column
// widths, and one cell format for each number format in use.
std::string Biff5Stream(Workbook& book);

// The same stream as the "Book" stream of a compound document, as Excel 5.0 reads it.
void WriteBiff5(Workbook& book, std::ostream& out);

}  // namespace gustline::wb
