#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gustline::geometry {

// What SortLines made of a list of lines.
enum class LineStatus : int {
  Uneven = 0,  // the list's length is not a multiple of 4
  Open = 1,    // some boundary does not close
  Closed = 2,  // every boundary closes
};

// Chains lines given as x1, y1, x2, y2 texts head to tail into boundaries. Two ends are the
// same vertex only when their texts are identical. When all boundaries close, the list is
// replaced by their points as x, y texts: each boundary from its first point round to the
// same point again (with `onePointPerLine` false, both ends of every line), followed by an
// empty x and y. Otherwise the list is left as it was.
LineStatus SortLines(std::vector<std::string>& list, bool onePointPerLine);

// Cuts a vertex text "x,y" at its comma.
void SplitPoint(std::string_view text, std::string& x, std::string& y);

}  // namespace gustline::geometry
