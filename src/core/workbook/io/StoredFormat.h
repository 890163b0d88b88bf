#pragma once

#include <istream>
#include <string_view>

#include "core/workbook/io/WorkbookDocument.h"

namespace gustline::wb {

class Workbook;

// The record stream that projects and templates of earlier versions were stored in, read
// only; docs/stored-format.md describes it record by record.

// True when the bytes open with the begin record of a book's globals.
bool LooksStored(std::string_view head);

// The book that a whole file holds, its formulas as text that our parser reads; a link to a
// book named `bookName` is one to the book itself. Raises FacilityError(errc::kFileCorrupt)
// naming the offset and the record of what is damaged.
WorkbookDocument ParseStored(std::string_view bytes, std::string_view bookName);

// Replaces the book's content by the file's, or raises as ParseStored does and leaves the
// book as it was. The book keeps its own name.
void ReadStored(std::istream& in, Workbook& book);

}  // namespace gustline::wb
