#include "geometry/IntervalAreas.h"

#include <algorithm>

#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/NumberFormat.h"
#include "geometry/ClosedPaths.h"
#include "geometry/MiddlePivotSort.h"
#include "geometry/Nudge.h"
#include "geometry/PointList.h"
#include "geometry/ReadColumn.h"
#include "geometry/SegmentCut.h"

namespace gustline::geometry {
namespace {

constexpr int kOutlineSheet = 2;
constexpr char kZeroAreas[] = "Interval areas will be set to 0.0 sq. ft.";

void Warn(Prompt& prompt, std::string text) {
  prompt.Show({"Warning", std::move(text), PromptIcon::Exclamation, PromptButtons::Ok});
}

std::string Fixed2(double number) {
  return wb::FormatNumber(number, "0.00");
}

struct Extent {
  double low;
  double high;
};

Extent ExtentOf(std::vector<double> values) {
  SortNumbers(values);
  return {values.front(), values.back()};
}

// The checks of the coordinates before any cutting; false when every area stays 0.
// Ymax comes back clipped to the structure height.
bool CheckOutline(const std::vector<double>& x, const std::vector<double>& y, double height,
                  Extent& xExtent, Extent& yExtent, Prompt& prompt) {
  if (x.size() < 4 || y.size() < 4) {
    Warn(prompt, std::string("At least four (4) X-Y coordinates pairs are\r\n") +
                     "required to define a structure geometry.\r\n\r\n" + kZeroAreas);
    return false;
  }
  if (x.size() != y.size()) {
    Warn(prompt, std::string("Number of X-Y coordinates DO NOT match.\r\n\r\n") + kZeroAreas);
    return false;
  }
  xExtent = ExtentOf(x);
  yExtent = ExtentOf(y);
  auto valueLines = [height, &yExtent] {
    return "Structure Height   = " + Fixed2(height) +
           "\r\nMax Y-Coordinate = " + Fixed2(yExtent.high);
  };
  if (yExtent.high > height) {
    Warn(prompt,
         "Geometry max Y-coordinated exceeds structure height.\r\n"
         "Projected area above structure height will be ignored.\r\n\r\n" +
             valueLines());
    yExtent.high = height;
  }
  if (yExtent.high < height - 0.01)
    Warn(prompt,
         "Geometry Y-Max coordinate is less than structure height.\r\n"
         "Projected area above Y-Max will be set to 0.00 sq. ft.\r\n\r\n" +
             valueLines());
  if (yExtent.low < 0)
    Warn(prompt,
         "Geometry with Y-coordinate less than 0.0\r\n"
         "Projected area below 0.0 elevation will be ignored.\r\n\r\n");
  if (yExtent.high < 1.0) {
    prompt.Show({"Error",
                 "Maximun Y-coordinate must be greater than 1.00 ft.\r\nMax Y-Coordinate = " +
                     Fixed2(yExtent.high) + "\r\n\r\n",
                 PromptIcon::Stop, PromptButtons::Ok});
    return false;
  }
  return true;
}

void Append(PointList& to, const PointList& from) {
  to.insert(to.end(), from.begin(), from.end());
}

// The area of the outline between the two cut lines of one interval.
float SlabArea(const PointList& points, float xa, float xb, float lowerCut, float upperCut,
               Prompt& prompt) {
  const PointClass p1(xa, lowerCut), p2(xb, lowerCut), p3(xa, upperCut), p4(xb, upperCut);
  PointList inner, cut, upper, lower;
  PointClass start = points.front();
  const std::size_t lastIndex = points.size() - 1;
  for (std::size_t j = 0; j < lastIndex; ++j) {
    const PointClass& a = points[j];
    const PointClass& b = points[j + 1];
    const SegmentClass segment = ClassifySegment(p1, p2, p3, p4, a, b);
    switch (segment.code) {
      case SegmentCode::Outside:
        break;
      case SegmentCode::Inside:
        inner.insert(inner.end(), {a, b});
        break;
      case SegmentCode::CrossesBoth:
        cut.insert(cut.end(), {segment.lower, segment.upper});
        upper.push_back(segment.upper);
        lower.push_back(segment.lower);
        break;
      case SegmentCode::LowerFromA:
        cut.insert(cut.end(), {segment.lower, a});
        lower.push_back(segment.lower);
        break;
      case SegmentCode::LowerToB:
        cut.insert(cut.end(), {segment.lower, b});
        lower.push_back(segment.lower);
        break;
      case SegmentCode::UpperFromA:
        cut.insert(cut.end(), {segment.upper, a});
        upper.push_back(segment.upper);
        break;
      case SegmentCode::UpperToB:
        cut.insert(cut.end(), {segment.upper, b});
        upper.push_back(segment.upper);
        break;
      case SegmentCode::Unresolved:
        prompt.Show({"Error", "Try Again. If error persist contact software vendor.",
                     PromptIcon::Stop, PromptButtons::Ok});
        break;
    }
    // The line from a closing point to the next boundary's first point is no line.
    if (SamePoint(b, start)) {
      ++j;
      if (j + 1 < lastIndex) start = points[j + 1];
    }
  }
  // Sorted by X, the crossings on each cut line pair off into the slab's closing edges.
  SortPointsBy(upper, 0);
  SortPointsBy(lower, 0);
  Append(cut, upper);
  Append(cut, lower);
  // Whole boundaries inside the slab are holes, whichever way round they run.
  float holes = 0;
  while (!inner.empty()) {
    PointList chain;
    const PointClass chainStart = inner.front();
    TraceChain(chainStart, inner, chain);
    if (IsClosedPath(chain))
      holes -= PathArea(chain);
    else
      Append(cut, chain);
  }
  return holes + (IsClosedPath(cut) ? PathArea(cut) : 0.0f);
}

// Restores status panel 1 however the calculation ends.
class StatusText {
 public:
  StatusText(const std::function<std::string(const std::string&)>& show, const std::string& text)
      : show_(show) {
    if (show_) saved_ = show_(text);
  }
  ~StatusText() {
    if (show_) show_(saved_);
  }
  StatusText(const StatusText&) = delete;
  StatusText& operator=(const StatusText&) = delete;

 private:
  const std::function<std::string(const std::string&)>& show_;
  std::string saved_;
};

}  // namespace

std::vector<float> OutlineIntervalAreas(const std::vector<double>& x, const std::vector<double>& y,
                                        double height, const std::vector<HeightInterval>& table,
                                        Prompt& prompt, CutRandom& random) {
  std::vector<float> areas(table.size(), 0.0f);
  Extent xExtent{}, yExtent{};
  if (!CheckOutline(x, y, height, xExtent, yExtent, prompt)) return areas;
  if (!IsClosedPath(MakeLineList(x, y))) {
    prompt.Show({"Geometry error",
                 std::string("Broken boundaries are not allowed.\r\n") +
                     "Line path must be continuous & vbCrLf & vbCrLf" + kZeroAreas,
                 PromptIcon::Stop, PromptButtons::Ok});
    return areas;
  }
  const PointList points = MakePointList(x, y);
  // Cut lines reach past the outline on both sides.
  const auto xa = static_cast<float>(xExtent.low - 1.0);
  const auto xb = static_cast<float>(xExtent.high + 1.0);
  for (std::size_t i = 0; i < table.size(); ++i) {
    const double offset = Nudge(random);
    const auto lowerCut = static_cast<float>(offset + table[i].low - 0.01);
    const auto upperCut = static_cast<float>(offset + table[i].high);
    if (yExtent.low > upperCut) continue;
    areas[i] = SlabArea(points, xa, xb, lowerCut, upperCut, prompt);
  }
  return areas;
}

std::string IntervalAreasText(const std::vector<float>& areas, int order, Prompt& prompt) {
  if (areas.empty() || (order != 0 && order != 1)) return {};
  std::string text;
  auto write = [&text](float area) { text += Fixed2(area) + ' '; };
  if (order == 0)
    std::for_each(areas.rbegin(), areas.rend(), write);
  else
    std::for_each(areas.begin(), areas.end(), write);
  // Only the area written last is tested.
  const float last = order == 0 ? areas.front() : areas.back();
  if (last < 0)
    Warn(prompt,
         "Calculated Area is negative. Make sure height\r\n"
         "interval is less than structure height or\r\n"
         "check for unproperly defined geometry.\r\n");
  return text;
}

std::string GetIntervalAreas(wb::Workbook& project, const AreaContext& context) {
  const StatusText status(context.showStatus, "Calculating Area...");
  const double height = wb::ReadNamedNumber(project, "Height");
  const int order = wb::ReadNamedInt(project, "Order");
  const auto table = BuildIntervalTable(height, wb::ReadNamedInt(project, "Interval"),
                                        wb::ReadNamedText(project, "UserIntervals"));
  if (context.ignoreArea) {
    std::string text;
    for (std::size_t i = 0; i < table.size(); ++i) text += "1.00 ";
    return text;
  }
  const auto x = ReadColumn(project, kOutlineSheet, 1);
  const auto y = ReadColumn(project, kOutlineSheet, 2);
  return IntervalAreasText(
      OutlineIntervalAreas(x, y, height, table, context.prompt, context.random), order,
      context.prompt);
}

float GetTotalArea(const std::vector<double>& x, const std::vector<double>& y, Prompt& prompt) {
  const PointList points = MakePointList(x, y);
  auto fail = [&prompt](const char* text) {
    prompt.Show({"Geometry Error", text, PromptIcon::Stop, PromptButtons::Ok});
    return 0.0f;
  };
  if (points.size() < 4) return fail("Not enough coordinates to start calculations.");
  std::vector<float> areas;
  std::size_t next = 0;
  while (points.size() - next >= 3) {
    const std::size_t first = next++;
    while (next < points.size() && !SamePoint(points[next], points[first])) ++next;
    if (next == points.size()) return fail("Boundaries are incomplete.");
    ++next;
    areas.push_back(PolygonArea(PointList(points.begin() + static_cast<std::ptrdiff_t>(first),
                                          points.begin() + static_cast<std::ptrdiff_t>(next))));
  }
  // The largest boundary is the outline and all others are openings.
  MiddlePivotSort(areas, [](float a, float b) { return a < b; });
  float net = areas.back();
  for (std::size_t i = 0; i + 1 < areas.size(); ++i) net -= areas[i];
  return net;
}

}  // namespace gustline::geometry
