// The projected area by height interval of an outline of 1,000 points with openings, over
// 100 intervals of 1 ft.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "core/Prompt.h"
#include "geometry/HeightList.h"
#include "geometry/IntervalAreas.h"
#include "geometry/Nudge.h"

namespace {

struct Outline {
  std::vector<double> x, y;
  void Add(double px, double py) {
    x.push_back(px);
    y.push_back(py);
  }
};

// A tower 100 ft high with wavy sides of 400 points each, and 40 square openings of 5
// points, half of them across a cut line.
Outline Tower() {
  Outline outline;
  constexpr int kSide = 400;
  for (int i = 0; i <= kSide; ++i) {
    const double y = 100.0 * i / kSide;
    outline.Add(-2 * std::sin(y / 7), y);
  }
  for (int i = 1; i < kSide; ++i) {
    const double y = 100.0 * (kSide - i) / kSide;
    outline.Add(40 + 3 * std::cos(y / 5), y);
  }
  outline.Add(0, 0);
  for (int k = 0; k < 40; ++k) {
    const double left = 5 + (k % 4) * 8;
    const double bottom = 2.3 * k + (k % 2 == 0 ? 0.2 : 0.7);
    outline.Add(left, bottom);
    outline.Add(left + 3, bottom);
    outline.Add(left + 3, bottom + 0.6);
    outline.Add(left, bottom + 0.6);
    outline.Add(left, bottom);
  }
  return outline;
}

void IntervalAreasOfATower(benchmark::State& state) {
  const Outline outline = Tower();
  const auto table = gustline::geometry::BuildIntervalTable(100, 1, "");
  gustline::ScriptedPrompt prompt;
  gustline::geometry::CutRandom random(17);
  for (auto _ : state) {
    auto areas =
        gustline::geometry::OutlineIntervalAreas(outline.x, outline.y, 100, table, prompt, random);
    benchmark::DoNotOptimize(areas);
  }
  state.counters["points"] = static_cast<double>(outline.x.size());
  state.counters["messages"] = static_cast<double>(prompt.messages.size());
}
BENCHMARK(IntervalAreasOfATower)->Unit(benchmark::kMillisecond);

}  // namespace
