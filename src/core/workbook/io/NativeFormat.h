#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <string_view>

#include "core/workbook/io/WorkbookDocument.h"

namespace gustline::wb {

class Workbook;

// The book's own text format (file type 5): UTF-8 lines, one item a line, cells in
// row-major order, ending with "end". The same book always gives the same bytes.
// docs/native-format.md describes it.
inline constexpr std::string_view kNativeMagic = "gustline-workbook";
inline constexpr int kNativeVersion = 1;

// Limits against hostile files: no line, file or count beyond these is read.
inline constexpr std::size_t kMaxNativeLine = 4u << 20;
inline constexpr std::size_t kMaxNativeFile = 256u << 20;
inline constexpr std::size_t kMaxNativeSheets = 256;
inline constexpr std::size_t kMaxNativeNames = 65536;
inline constexpr std::size_t kMaxNativeStyles = 65536;
inline constexpr std::size_t kMaxNativeObjects = 4096;

// True when the text starts with the magic line of the format.
bool LooksNative(std::string_view head);

// Reads and checks the whole text; raises FacilityError(errc::kFileCorrupt) on anything
// truncated, malformed or out of range.
WorkbookDocument ParseNative(std::istream& in);
void SerializeNative(const WorkbookDocument& document, std::ostream& out);

// Replaces the book's content by the text when it reads and every formula parses; the book
// keeps its own name. Otherwise raises FacilityError(errc::kFileCorrupt) and leaves the book
// exactly as it was.
void ReadNative(std::istream& in, Workbook& book);
void WriteNative(Workbook& book, std::ostream& out);

}  // namespace gustline::wb
