#pragma once

#include <bit>
#include <cstdint>
#include <string>

namespace gustline::wb {

// Little-endian integers and doubles appended to a byte string, as the binary file formats
// lay them out.
inline void AppendU8(std::string& bytes, std::uint32_t value) {
  bytes.push_back(static_cast<char>(value & 0xFF));
}

inline void AppendU16(std::string& bytes, std::uint32_t value) {
  AppendU8(bytes, value);
  AppendU8(bytes, value >> 8);
}

inline void AppendU32(std::string& bytes, std::uint32_t value) {
  AppendU16(bytes, value);
  AppendU16(bytes, value >> 16);
}

inline void AppendF64(std::string& bytes, double value) {
  const auto word = std::bit_cast<std::uint64_t>(value);
  AppendU32(bytes, static_cast<std::uint32_t>(word));
  AppendU32(bytes, static_cast<std::uint32_t>(word >> 32));
}

// Overwrites four bytes at `at` with a value known only after they were laid out.
inline void PatchU32(std::string& bytes, std::size_t at, std::uint32_t value) {
  for (int i = 0; i < 4; ++i)
    bytes[at + static_cast<std::size_t>(i)] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

}  // namespace gustline::wb
