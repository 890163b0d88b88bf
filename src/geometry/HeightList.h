#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gustline::geometry {

// One height interval in feet, as the area calculation keeps it: in single precision.
struct HeightInterval {
  float low = 0;
  float high = 0;
};

// The number of rows of a report's height tables. Raises FacilityError when `Height` runs
// off the end of the standard ladder (above 2000 ft) or the count overflows 16 bits.
std::int16_t CountHeightRows(double height, int interval, std::string_view userIntervals);

// The two height columns of a report table, "low<TAB>high<CR LF>" per row, the highest row
// first with `Order` 0 and last with `Order` 1. Same failures as CountHeightRows.
std::string BuildHeightText(double height, int interval, int order, std::string_view userIntervals);

// The rows of BuildHeightText in ascending order whatever `Order` says, narrowed to single
// precision, for the projected area by height interval.
std::vector<HeightInterval> BuildIntervalTable(double height, int interval,
                                               std::string_view userIntervals);

// The entries of a comma list as written: comma, semicolon, colon, tab, CR, LF and runs of
// blanks all separate, and empty entries are dropped.
std::vector<std::string_view> CommaListEntries(std::string_view text);
// The entries as numbers; an entry that does not start with a number is 0.
std::vector<double> ReadCommaList(std::string_view text);

// The length in feet of the equal steps of `Interval` 1 to 4: 1, 5, 10 and 20.
double IntervalStep(int interval);

}  // namespace gustline::geometry
