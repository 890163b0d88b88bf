// gustline-wbbuild: turns the sources of a workbook into the native file the program carries.
//   gustline-wbbuild BOOK-FILE OUTPUT
// A fault in the sources is printed as "file:line: error: ..." and nothing is written.
#include <iostream>

#include "BookAssembler.h"
#include "core/workbook/FacilityError.h"
#include "core/workbook/Workbook.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: gustline-wbbuild BOOK-FILE OUTPUT\n";
    return 2;
  }
  try {
    gustline::wb::Workbook book;
    gustline::books::BookAssembler assembler(book);
    assembler.ReadBook(argv[1]);
    assembler.CheckFormulas();
    book.Recalc();
    book.WriteWorkbook(argv[2], gustline::wb::FileType::Native);
  } catch (const gustline::books::SourceError& error) {
    std::cerr << error.what() << '\n';
    return 1;
  } catch (const gustline::wb::FacilityError& error) {
    std::cerr << "gustline-wbbuild: " << argv[2] << ": " << error.what() << '\n';
    return 1;
  }
  return 0;
}
