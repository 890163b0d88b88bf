#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/workbook/io/RecordStream.h"
#include "core/workbook/value/CellStyle.h"

namespace gustline::wb {

// The fonts, number formats and cell formats of a stored book's globals, and the engine's
// style that each cell format stands for.
class StoredStyles {
 public:
  void AddFont(RecordReader& in);
  void AddNumberFormat(RecordReader& in);
  void AddCellFormat(RecordReader& in);

  std::size_t CellFormatCount() const { return cellFormats_.size(); }
  // `index` must be below CellFormatCount().
  CellStyle StyleOf(std::size_t index) const;

 private:
  struct CellFormat {
    std::uint16_t font = 0;
    std::uint16_t numberFormat = 0;
    std::uint8_t alignment = 0;
    std::uint32_t fillAndBottom = 0;
    std::uint32_t otherBorders = 0;
  };

  std::vector<Font> fonts_;
  std::map<std::uint16_t, std::string> numberFormats_;
  std::vector<CellFormat> cellFormats_;
};

}  // namespace gustline::wb
