#pragma once

#include "geometry/PointList.h"

namespace gustline::geometry {

// Moves the lines connected to `point`, end to end, out of the line list `lines` into
// `chain`: first onward from the point, then backward from it at the chain's head.
void TraceChain(const PointClass& point, PointList& lines, PointList& chain);

// Whether the line list falls apart into chains that all close on their first point.
bool IsClosedPath(const PointList& lines);

// The number of closed chains of the line list; 0 when it is not a closed path.
int CountBoundaries(const PointList& lines);

// The shoelace area of a polygon whose last point repeats its first, either way round.
float PolygonArea(const PointList& polygon);

// The sum of the areas of the closed chains of the line list; 0 when it is not closed.
float PathArea(const PointList& lines);

}  // namespace gustline::geometry
