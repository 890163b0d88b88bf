#include <fstream>
#include <string_view>

#include "core/workbook/io/AtomicFile.h"
#include "core/workbook/io/Biff5Writer.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/io/StoredFormat.h"
#include "core/workbook/io/TextFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Utf8.h"

namespace gustline::wb {
namespace {

// The first bytes of a file, which the formats are recognised by.
constexpr std::size_t kHeadBytes = 64;

// A stored format that a book is read from: whether a file's first bytes are of it, and the
// reader that replaces the book by the file or raises FacilityError leaving it as it was.
struct FileReader {
  FileType type;
  bool (*recognise)(std::string_view head);
  void (*read)(std::istream& in, Workbook& book);
};

// Tried in order; only the book's own formats are read, so that a tab-delimited text or any
// other file given as a project is refused as corrupt and never replaces it. The stored
// record stream of earlier versions reads as a book of type 5, as it was saved.
constexpr FileReader kReaders[] = {
    {FileType::Native, LooksNative, ReadNative},
    {FileType::Native, LooksStored, ReadStored},
};

}  // namespace

FileType Workbook::ReadWorkbook(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw FacilityError(errc::kFileOpen, "Cannot open the file " + PrintableText(path));
  char head[kHeadBytes];
  in.read(head, sizeof head);
  const std::string_view headText(head, static_cast<std::size_t>(in.gcount()));
  for (const FileReader& reader : kReaders) {
    if (!reader.recognise(headText)) continue;
    in.clear();
    in.seekg(0);
    reader.read(in, *this);
    return reader.type;
  }
  throw FacilityError(errc::kFileCorrupt, PrintableText(path) + " is not a workbook file");
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
