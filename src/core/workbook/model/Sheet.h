#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/SheetSetup.h"
#include "core/workbook/value/Cell.h"

namespace gustline::wb {

// One sheet: its cells in rows, its layout and its view. Rows are stored densely, each as
// a vector up to its last written column, which keeps reads and the refresh walk fast.
class Sheet {
 public:
  static constexpr double kDefaultColumnWidth = 8.43;  // in characters of the default font

  Sheet(std::string name, std::uint32_t id) : name_(std::move(name)), id_(id) {}

  // Stable within its book for the life of the sheet; formulas refer to sheets by it.
  std::uint32_t Id() const { return id_; }

  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }

  // nullptr when the cell was never written.
  const Cell* Find(int row, int col) const;
  Cell* Find(int row, int col);
  // The cell, created empty when needed. Row and column must be in range.
  Cell& At(int row, int col);
  void Erase(int row, int col);
  // Removes every cell; layout, setup and view stay.
  void ClearAll();

  // The last row and column that hold a value or a formula; 0 on an empty sheet.
  int LastRow() const;
  int LastCol() const;
  // The extent of the written cells, formats alone included.
  int StoredRows() const { return static_cast<int>(rows_.size()); }
  int StoredCols() const;

  // Visits every written cell in row-major order: fn(row, col, cell).
  template <typename Fn>
  void ForEachCell(Fn&& fn) const {
    for (std::size_t r = 0; r < rows_.size(); ++r)
      for (std::size_t c = 0; c < rows_[r].size(); ++c)
        fn(static_cast<int>(r) + 1, static_cast<int>(c) + 1, rows_[r][c]);
  }
  template <typename Fn>
  void ForEachCell(Fn&& fn) {
    for (std::size_t r = 0; r < rows_.size(); ++r)
      for (std::size_t c = 0; c < rows_[r].size(); ++c)
        fn(static_cast<int>(r) + 1, static_cast<int>(c) + 1, rows_[r][c]);
  }

  bool RowHidden(int row) const;
  void SetRowHidden(int row, bool hidden);
  const std::vector<int>& HiddenRows() const { return hiddenRows_; }  // ascending

  double ColumnWidth(int col) const;
  void SetColumnWidth(int col, double width);
  const std::map<int, double>& ColumnWidths() const { return columnWidths_; }
  double DefaultColumnWidth() const { return defaultColumnWidth_; }
  void SetDefaultColumnWidth(double width) { defaultColumnWidth_ = width; }

  PrintSetup& Print() { return print_; }
  const PrintSetup& Print() const { return print_; }
  DisplaySwitches& Display() { return display_; }
  const DisplaySwitches& Display() const { return display_; }
  std::vector<SheetObject>& Objects() { return objects_; }
  const std::vector<SheetObject>& Objects() const { return objects_; }

  // The view: selection, active cell, first row and column shown, rows shown.
  Area selection;
  CellAddress active;
  int topRow = 1;
  int leftCol = 1;
  int maxRow = kMaxRow;
  bool selected = false;  // member of the multi-sheet selection that page setup acts on

 private:
  std::string name_;
  std::uint32_t id_;
  std::vector<std::vector<Cell>> rows_;
  std::vector<int> hiddenRows_;
  std::map<int, double> columnWidths_;
  double defaultColumnWidth_ = kDefaultColumnWidth;
  PrintSetup print_;
  DisplaySwitches display_;
  std::vector<SheetObject> objects_;
};

}  // namespace gustline::wb
