#include "geometry/ClosedPaths.h"

#include <cmath>
#include <cstddef>
#include <optional>

namespace gustline::geometry {
namespace {

struct Match {
  std::size_t line;  // index of the line's first entry
  bool firstEnd;     // whether the line's first end is the one that matched
};

// The first line, in list order, with an end at the point; the first end is tried first.
std::optional<Match> FindLineAt(const PointList& lines, const PointClass& point) {
  for (std::size_t k = 0; k + 1 < lines.size(); k += 2) {
    if (SamePoint(lines[k], point)) return Match{k, true};
    if (SamePoint(lines[k + 1], point)) return Match{k, false};
  }
  return std::nullopt;
}

// Takes the line at the point out of the list: its matching end, then its other end.
std::optional<std::pair<PointClass, PointClass>> TakeLineAt(PointList& lines,
                                                            const PointClass& point) {
  if (lines.size() < 2) return std::nullopt;
  const auto match = FindLineAt(lines, point);
  if (!match) return std::nullopt;
  const PointClass first = lines[match->line];
  const PointClass second = lines[match->line + 1];
  const auto at = lines.begin() + static_cast<std::ptrdiff_t>(match->line);
  lines.erase(at, at + 2);
  if (match->firstEnd) return std::pair{first, second};
  return std::pair{second, first};
}

// Walks the chains of a line list from its head; the number of chains, or nullopt when one
// does not close or a remnant of under three lines is left.
std::optional<int> WalkChains(const PointList& lines) {
  if (lines.size() < 6 || lines.size() % 2 != 0) return std::nullopt;
  PointList rest = lines;
  int chains = 0;
  while (!rest.empty()) {
    PointList chain;
    const PointClass start = rest.front();
    TraceChain(start, rest, chain);
    if (!SamePoint(chain.front(), chain.back())) return std::nullopt;
    ++chains;
    if (!rest.empty() && rest.size() < 6) return std::nullopt;
  }
  return chains;
}

}  // namespace

void TraceChain(const PointClass& point, PointList& lines, PointList& chain) {
  PointClass current = point;
  while (const auto line = TakeLineAt(lines, current)) {
    chain.push_back(line->first);
    chain.push_back(line->second);
    current = line->second;
  }
  PointList head;
  current = point;
  while (const auto line = TakeLineAt(lines, current)) {
    head.push_back(line->first);
    head.push_back(line->second);
    current = line->second;
  }
  // Each backward line went in before the chain's first entry, its matching end first.
  chain.insert(chain.begin(), head.rbegin(), head.rend());
}

bool IsClosedPath(const PointList& lines) {
  return WalkChains(lines).has_value();
}

int CountBoundaries(const PointList& lines) {
  return WalkChains(lines).value_or(0);
}

float PolygonArea(const PointList& polygon) {
  float sum1 = 0;
  float sum2 = 0;
  for (std::size_t i = 0; i + 1 < polygon.size(); ++i) {
    sum1 += polygon[i + 1].X * polygon[i].Y;
    sum2 += polygon[i].X * polygon[i + 1].Y;
  }
  return std::fabs((sum2 - sum1) / 2);
}

float PathArea(const PointList& lines) {
  if (lines.size() < 2 || !IsClosedPath(lines)) return 0;
  const int boundaries = CountBoundaries(lines);
  PointList rest = lines;
  float area = 0;
  for (int n = 0; n < boundaries; ++n) {
    PointList chain;
    const PointClass start = rest.front();
    TraceChain(start, rest, chain);
    RemoveRepeats(chain);
    area += PolygonArea(chain);
  }
  return area;
}

}  // namespace gustline::geometry
