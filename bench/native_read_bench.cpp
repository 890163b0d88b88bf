#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"

namespace {

using gustline::wb::Workbook;

// A project file with `count` defined names, as a damaged or generated file may carry: the
// read must stay linear in the names (each is checked against those before it).
std::string FileWithNames(int count) {
  Workbook book("WindData");
  book.SetCellNumber(1, 1, 60);
  for (int i = 0; i < count; ++i) book.SetDefinedName("Name" + std::to_string(i), "Sheet1!$A$1");
  std::ostringstream out;
  gustline::wb::WriteNative(book, out);
  return out.str();
}

void BM_ReadNames(benchmark::State& state) {
  const std::string file = FileWithNames(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    Workbook book("WindData");
    std::istringstream in(file);
    gustline::wb::ReadNative(in, book);
    benchmark::DoNotOptimize(book);
  }
  state.SetComplexityN(state.range(0));
}

}  // namespace

BENCHMARK(BM_ReadNames)
    ->Arg(15000)
    ->Arg(30000)
    ->Arg(60000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
