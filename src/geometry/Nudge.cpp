#include "geometry/Nudge.h"

#include <chrono>
#include <cstdlib>

namespace gustline::geometry {
namespace {

std::uint32_t ClockSeed() {
  return static_cast<std::uint32_t>(
      std::chrono::high_resolution_clock::now().time_since_epoch().count());
}

}  // namespace

CutRandom::CutRandom() : engine_(ClockSeed()), seeded_(false) {
  // A run that must repeat (the tests, a comparison of two builds) fixes the sequence.
  if (const char* seed = std::getenv("GUSTLINE_CUT_SEED")) {
    engine_.seed(static_cast<std::uint32_t>(std::strtoul(seed, nullptr, 10)));
    seeded_ = true;
  }
}

CutRandom::CutRandom(std::uint32_t seed) : engine_(seed), seeded_(true) {}

void CutRandom::Reseed() {
  if (!seeded_) engine_.seed(ClockSeed());
}

double CutRandom::Draw() {
  return engine_() / 4294967296.0;
}

double Nudge(CutRandom& random) {
  random.Reseed();
  double offset = 0;
  while (offset == 0) offset = random.Draw() / 1000.0;
  return offset;
}

}  // namespace gustline::geometry
