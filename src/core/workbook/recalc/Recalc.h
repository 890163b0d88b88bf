#pragma once

#include <cstdint>
#include <vector>

namespace gustline::wb {

class Workbook;

// The calculation state of one book: whether its cached results are stale, and the order in
// which its formula cells are evaluated, kept until a structural change.
class RecalcState {
 public:
  // One formula cell: sheet index (0-based), row and column.
  struct Item {
    std::int32_t sheet;
    std::int32_t row;
    std::int32_t col;
  };
  // A run of items in the order: a single cell, or a strongly connected component.
  struct Group {
    std::uint32_t begin;
    std::uint32_t end;
    bool cyclic;
  };

  // The state of a book, made on first use.
  static RecalcState& Of(Workbook& book);
  // Calculates every formula cell of the book once, in dependency order.
  static void Run(Workbook& book);
  // Builds the evaluation order of the book's formula cells.
  static void BuildOrder(Workbook& book, RecalcState& state);

  // A book that formulas or names of this book read through a link, with its change count
  // as this book's last calculation saw it.
  struct Link {
    std::uint64_t bookId;
    std::uint64_t seenChangeCount;
  };

  // True when a linked book has changed or closed since the last calculation, or a book
  // that one reads through its links, however far.
  bool LinkChanged() const;

  bool dirty = true;
  bool busy = false;
  bool orderValid = false;
  bool settled = false;
  std::vector<Link> links;
  std::vector<Item> items;
  std::vector<Group> groups;

 private:
  bool LinkChanged(std::vector<std::uint64_t>& visited) const;
};

}  // namespace gustline::wb
