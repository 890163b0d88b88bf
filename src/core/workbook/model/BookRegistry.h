#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace gustline::wb {

class Workbook;

// The open workbooks of the process, which links in brackets resolve against by BookName.
// Workbooks add and remove themselves. One thread, as the whole program.
class BookRegistry {
 public:
  static BookRegistry& Instance();

  void Add(Workbook* book);
  void Remove(Workbook* book);
  // The first open book (in the order opened) whose trimmed BookName equals the text
  // without regard to case, or nullptr.
  Workbook* FindByName(std::string_view bookName) const;
  // The book of an id, or nullptr when that book is closed.
  Workbook* FindById(std::uint64_t id) const;
  std::uint64_t NextId() { return ++lastId_; }

 private:
  std::vector<Workbook*> books_;
  std::uint64_t lastId_ = 0;
};

}  // namespace gustline::wb
