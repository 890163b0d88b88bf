#include "core/workbook/model/BookRegistry.h"

#include <algorithm>

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {

BookRegistry& BookRegistry::Instance() {
  static BookRegistry registry;
  return registry;
}

void BookRegistry::Add(Workbook* book) {
  if (std::find(books_.begin(), books_.end(), book) == books_.end()) books_.push_back(book);
}

void BookRegistry::Remove(Workbook* book) {
  std::erase(books_, book);
}

Workbook* BookRegistry::FindByName(std::string_view bookName) const {
  const std::string_view wanted = TrimBlanks(bookName);
  for (Workbook* book : books_)
    if (EqualNoCase(book->BookName(), wanted)) return book;
  return nullptr;
}

Workbook* BookRegistry::FindById(std::uint64_t id) const {
  for (Workbook* book : books_)
    if (book->Id() == id) return book;
  return nullptr;
}

}  // namespace gustline::wb
