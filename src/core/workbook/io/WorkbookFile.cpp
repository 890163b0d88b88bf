#include <fstream>

#include "core/workbook/io/AtomicFile.h"
#include "core/workbook/io/Biff5Writer.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/io/TextFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Utf8.h"

namespace gustline::wb {

// Only the book's own format is read: a tab-delimited text or any other file is refused as
// corrupt, so that a wrong file given as a project never replaces it.
FileType Workbook::ReadWorkbook(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw FacilityError(errc::kFileOpen, "Cannot open the file " + PrintableText(path));
  char head[64];
  in.read(head, sizeof head);
  if (!LooksNative(std::string_view(head, static_cast<std::size_t>(in.gcount()))))
    throw FacilityError(errc::kFileCorrupt, PrintableText(path) + " is not a workbook file");
  in.clear();
  in.seekg(0);
  ReadNative(in, *this);
  return FileType::Native;
}

void Workbook::WriteWorkbook(const std::string& path, FileType type) {
  if (type != FileType::Native && type != FileType::Text && type != FileType::Excel5)
    throw FacilityError(errc::kFileType, "This file type cannot be written yet");
  AtomicFile file(path);
  if (type == FileType::Native)
    WriteNative(*this, file.Stream());
  else if (type == FileType::Excel5)
    WriteBiff5(*this, file.Stream());
  else
    WriteText(*this, file.Stream());
  file.Commit();
}

// Every sheet keeps its selection, active cell and first row and column shown as part of the
// book, and the native writer stores them; there is nothing more to take from a window.
void Workbook::SaveWindowInfo() {}

}  // namespace gustline::wb
