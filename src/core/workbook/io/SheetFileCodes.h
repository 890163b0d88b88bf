#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "core/workbook/value/Value.h"

namespace gustline::wb {

// The codes that the binary workbook formats share: the byte of each error value, and the
// number formats known by index without a format record of their own.

inline constexpr std::array<std::pair<ErrorCode, std::uint8_t>, 7> kErrorBytes = {{
    {ErrorCode::Null, 0x00},
    {ErrorCode::Div0, 0x07},
    {ErrorCode::Value, 0x0F},
    {ErrorCode::Ref, 0x17},
    {ErrorCode::Name, 0x1D},
    {ErrorCode::Num, 0x24},
    {ErrorCode::NA, 0x2A},
}};

inline std::uint8_t ErrorByte(ErrorCode code) {
  for (const auto& [error, byte] : kErrorBytes)
    if (error == code) return byte;
  return 0x2A;
}

inline std::optional<ErrorCode> ErrorOfByte(std::uint8_t byte) {
  for (const auto& [error, code] : kErrorBytes)
    if (code == byte) return error;
  return std::nullopt;
}

inline constexpr std::array<std::pair<std::string_view, std::uint32_t>, 8> kBuiltInFormats = {{
    {"General", 0},
    {"0", 1},
    {"0.00", 2},
    {"#,##0", 3},
    {"#,##0.00", 4},
    {"0%", 9},
    {"0.00%", 10},
    {"0.00E+00", 11},
}};

}  // namespace gustline::wb
