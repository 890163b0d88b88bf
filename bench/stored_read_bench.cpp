#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "core/workbook/io/LittleEndian.h"
#include "core/workbook/io/StoredFormat.h"
#include "core/workbook/model/Workbook.h"

namespace {

using gustline::wb::AppendF64;
using gustline::wb::AppendU16;
using gustline::wb::AppendU8;

void Fixed(std::string& out, std::uint32_t type, const std::string& data) {
  AppendU8(out, type);
  out += data;
}

void Sized(std::string& out, std::uint32_t type, const std::string& data) {
  AppendU8(out, type);
  AppendU8(out, 0xFF);
  AppendU16(out, static_cast<std::uint32_t>(data.size()));
  out += data;
}

std::string CellHead(int row, int col) {
  std::string data;
  AppendU16(data, static_cast<std::uint32_t>(row));
  AppendU16(data, static_cast<std::uint32_t>(col));
  AppendU16(data, 0);
  return data;
}

// A stored book of 100 rows by 100 columns: in each row nine numbers in ten, and the tenth
// a formula doubling the cell to its left, as a report page mixes them.
std::string TenThousandCells() {
  std::string begin;
  AppendU16(begin, 0x0500);
  std::string out;
  Fixed(out, 0x09, begin + std::string("\x05\x00", 2));
  std::string cellFormat(16, '\0');
  Sized(out, 0xE0, cellFormat);
  Sized(out, 0x85, std::string("\x00\x00\x06Sheet1", 9));
  Fixed(out, 0x0A, "");
  Fixed(out, 0x09, begin + std::string("\x10\x00", 2));
  for (int row = 0; row < 100; ++row) {
    for (int col = 0; col < 100; ++col) {
      std::string data = CellHead(row, col);
      if (col % 10 != 9) {
        AppendF64(data, row * 100.0 + col);
        Fixed(out, 0x03, data);
        continue;
      }
      AppendF64(data, 2 * (row * 100.0 + col - 1));
      data += std::string(6, '\0');
      AppendU16(data, 8);
      AppendU8(data, 0x44);  // the cell to the left, relative
      AppendU16(data, static_cast<std::uint32_t>(row) | 0xC000);
      AppendU8(data, static_cast<std::uint32_t>(col - 1));
      AppendU8(data, 0x1E);  // times 2
      AppendU16(data, 2);
      AppendU8(data, 0x05);
      Sized(out, 0x06, data);
    }
  }
  Fixed(out, 0x0A, "");
  return out;
}

void BM_ReadStoredCells(benchmark::State& state) {
  const std::string file = TenThousandCells();
  for (auto _ : state) {
    gustline::wb::Workbook book("WindData");
    std::istringstream in(file);
    gustline::wb::ReadStored(in, book);
    benchmark::DoNotOptimize(book);
  }
}

}  // namespace

BENCHMARK(BM_ReadStoredCells)->Unit(benchmark::kMillisecond);
