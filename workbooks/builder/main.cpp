// gustline-wbbuild: turns the sources of a workbook into the native file the program carries.
//   gustline-wbbuild BOOK-FILE OUTPUT [--link BOOK.gwb]...
// Each linked book is open under its file name without extension while the sources are read,
// so that links such as [WindData]Sheet1!Height are checked and calculated. A fault in the
// sources is printed as "file:line: error: ..." and nothing is written.
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "BookAssembler.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  std::vector<std::string> links;
  for (std::size_t i = 0; i + 1 < args.size(); ++i) {
    if (args[i] != "--link") continue;
    links.push_back(args[i + 1]);
    args.erase(args.begin() + static_cast<long>(i), args.begin() + static_cast<long>(i) + 2);
    --i;
  }
  if (args.size() != 2 || args[0].starts_with("--") || args[1].starts_with("--")) {
    std::cerr << "usage: gustline-wbbuild BOOK-FILE OUTPUT [--link BOOK.gwb]...\n";
    return 2;
  }
  std::vector<std::unique_ptr<gustline::wb::Workbook>> linked;
  for (const auto& path : links) {
    try {
      linked.push_back(
          std::make_unique<gustline::wb::Workbook>(std::filesystem::path(path).stem().string()));
      linked.back()->ReadWorkbook(path);
    } catch (const gustline::wb::FacilityError& error) {
      std::cerr << "gustline-wbbuild: " << path << ": " << error.what() << '\n';
      return 1;
    }
  }
  try {
    gustline::wb::Workbook book;
    gustline::books::BookAssembler assembler(book);
    assembler.ReadBook(args[0]);
    assembler.CheckFormulas();
    book.Recalc();
    book.WriteWorkbook(args[1], gustline::wb::FileType::Native);
  } catch (const gustline::books::SourceError& error) {
    std::cerr << error.what() << '\n';
    return 1;
  } catch (const gustline::wb::FacilityError& error) {
    std::cerr << "gustline-wbbuild: " << args[1] << ": " << error.what() << '\n';
    return 1;
  }
  return 0;
}
