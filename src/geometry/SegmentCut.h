#pragma once

#include <optional>

#include "geometry/PointClass.h"

namespace gustline::geometry {

// The crossing of segment a1-a2 with segment b1-b2, ends included and with no tolerance;
// nullopt when the lines are parallel or the crossing lies off either segment.
std::optional<PointClass> IntersectSegments(const PointClass& a1, const PointClass& a2,
                                            const PointClass& b1, const PointClass& b2);

// How a segment a-b lies against the slab between the lower cut p1-p2 and the upper cut p3-p4.
enum class SegmentCode : int {
  Outside = 0,      // wholly above the upper cut or wholly below the lower cut
  Inside = 1,       // wholly inside
  CrossesBoth = 2,  // crosses both cuts
  LowerFromA = 3,   // crosses the lower cut, a is inside
  LowerToB = 4,     // crosses the lower cut, b is inside
  UpperFromA = 5,   // crosses the upper cut, a is inside
  UpperToB = 6,     // crosses the upper cut, b is inside
  Unresolved = 7,   // none of these: the cut ran through a vertex in a way that failed
};

struct SegmentClass {
  SegmentCode code = SegmentCode::Outside;
  PointClass lower;  // the crossing with the lower cut, when there is one
  PointClass upper;  // the crossing with the upper cut, when there is one
};

SegmentClass ClassifySegment(const PointClass& p1, const PointClass& p2, const PointClass& p3,
                             const PointClass& p4, const PointClass& a, const PointClass& b);

}  // namespace gustline::geometry
