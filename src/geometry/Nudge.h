#pragma once

#include <cstdint>
#include <random>

namespace gustline::geometry {

// The random source of the cut offsets. By default it is re-seeded from the clock at every
// nudge, so that a cut that fails ("Try Again") may pass the next time; given a seed, or the
// environment variable GUSTLINE_CUT_SEED, it draws one repeatable sequence instead.
class CutRandom {
 public:
  CutRandom();
  explicit CutRandom(std::uint32_t seed);

  // From the clock, unless the source was given a seed.
  void Reseed();
  // A number in [0, 1).
  double Draw();

 private:
  std::mt19937 engine_;
  bool seeded_;
};

// The offset of an interval's cut lines off their elevations: in the open range 0 to 0.001,
// so that a cut never runs exactly through a vertex or along a horizontal edge.
double Nudge(CutRandom& random);

}  // namespace gustline::geometry
