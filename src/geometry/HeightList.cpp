#include "geometry/HeightList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>

#include "core/workbook/value/FacilityError.h"

namespace gustline::geometry {
namespace {

// The standard height ladder of the report tables, in feet.
constexpr std::array<double, 52> kLadder = {
    15,   20,   25,   30,   40,   50,   60,   70,   80,   90,   100,  120,  140,
    160,  180,  200,  250,  300,  350,  400,  450,  500,  550,  600,  650,  700,
    750,  800,  850,  900,  950,  1000, 1050, 1100, 1150, 1200, 1250, 1300, 1350,
    1400, 1450, 1500, 1550, 1600, 1650, 1700, 1750, 1800, 1850, 1900, 1950, 2000};

constexpr int kMaxRows = 32767;
constexpr double kGap = 0.01;  // each row starts this far above the top of the one below

[[noreturn]] void RaiseOverflow() {
  throw wb::FacilityError(wb::errc::kBadArgument, "Overflow");
}

struct HeightInputs {
  double height;
  int interval;
  std::vector<double> lengths;
};

// The corrections that both the count and the list make before they start.
HeightInputs Correct(double height, int interval, std::string_view userIntervals) {
  HeightInputs inputs{height, interval, {}};
  if (!(inputs.height >= 1)) inputs.height = 1;
  if (inputs.interval < 0 || inputs.interval > 5) inputs.interval = 0;
  if (inputs.interval == 5) {
    inputs.lengths = ReadCommaList(userIntervals);
    if (inputs.lengths.size() > static_cast<std::size_t>(kMaxRows)) RaiseOverflow();
    if (userIntervals.find_first_not_of(' ') == std::string_view::npos) inputs.interval = 0;
  }
  return inputs;
}

// The index of the first ladder entry not below the height.
int LadderIndex(double height) {
  for (std::size_t k = 0; k < kLadder.size(); ++k)
    if (!(kLadder[k] < height)) return static_cast<int>(k);
  throw wb::FacilityError(wb::errc::kBadArgument, "Subscript out of range");
}

// Equal steps: a remainder of up to half a step goes into the last row.
int StepRows(double height, double step) {
  const double whole = std::floor(height / step);
  if (whole >= kMaxRows) RaiseOverflow();
  const int q = static_cast<int>(whole);
  const double rest = height - step * q;
  return rest > step / 2 ? q + 1 : q;
}

int RowCount(const HeightInputs& inputs) {
  if (inputs.interval == 0) return LadderIndex(inputs.height) + 1;
  if (inputs.interval == 5) return static_cast<int>(inputs.lengths.size());
  return StepRows(inputs.height, IntervalStep(inputs.interval));
}

// The rows, lowest first, as pairs of low and high.
std::vector<std::pair<double, double>> HeightRows(const HeightInputs& inputs) {
  std::vector<std::pair<double, double>> rows;
  double previous = 0;
  if (inputs.interval == 5) {
    double sum = 0;
    for (double length : inputs.lengths) {
      sum += length;
      rows.emplace_back(previous, sum);
      previous = sum + kGap;
    }
    return rows;
  }
  if (inputs.interval == 0) {
    const int top = LadderIndex(inputs.height);
    for (int k = 0; k < top; ++k) {
      rows.emplace_back(previous, kLadder[static_cast<std::size_t>(k)]);
      previous = kLadder[static_cast<std::size_t>(k)] + kGap;
    }
    rows.emplace_back(previous, inputs.height);
    return rows;
  }
  // Only the list clamps the step to the height; the count does not.
  double step = IntervalStep(inputs.interval);
  if (inputs.height < step) step = inputs.height;
  const int count = StepRows(inputs.height, step);
  for (int k = 0; k + 1 < count; ++k) {
    const double high = step * (k + 1);
    rows.emplace_back(previous, high);
    previous = high + kGap;
  }
  rows.emplace_back(previous, inputs.height);
  return rows;
}

// The shortest general form of a height: 15.01, 60.
std::string GeneralText(double number) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.15G", number);
  return buffer;
}

}  // namespace

double IntervalStep(int interval) {
  constexpr std::array<double, 4> kSteps = {1, 5, 10, 20};
  return kSteps[static_cast<std::size_t>(interval - 1)];
}

std::vector<std::string_view> CommaListEntries(std::string_view text) {
  std::vector<std::string_view> entries;
  constexpr std::string_view kSeparators = ",;:\t\r\n ";
  std::size_t start = 0;
  while ((start = text.find_first_not_of(kSeparators, start)) != std::string_view::npos) {
    const std::size_t end = std::min(text.find_first_of(kSeparators, start), text.size());
    entries.push_back(text.substr(start, end - start));
    start = end;
  }
  return entries;
}

std::vector<double> ReadCommaList(std::string_view text) {
  std::vector<double> entries;
  for (const std::string_view entry : CommaListEntries(text)) {
    double value = 0;
    const auto [ptr, ec] = std::from_chars(entry.data(), entry.data() + entry.size(), value);
    entries.push_back(ec == std::errc() && ptr != entry.data() && std::isfinite(value) ? value
                                                                                       : 0.0);
  }
  return entries;
}

std::int16_t CountHeightRows(double height, int interval, std::string_view userIntervals) {
  return static_cast<std::int16_t>(RowCount(Correct(height, interval, userIntervals)));
}

std::string BuildHeightText(double height, int interval, int order,
                            std::string_view userIntervals) {
  const auto rows = HeightRows(Correct(height, interval, userIntervals));
  std::string text;
  auto print = [&text](const std::pair<double, double>& row) {
    text += GeneralText(row.first) + '\t' + GeneralText(row.second) + "\r\n";
  };
  if (order == 0)
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) print(*row);
  else if (order == 1)
    for (const auto& row : rows) print(row);
  return text;
}

std::vector<HeightInterval> BuildIntervalTable(double height, int interval,
                                               std::string_view userIntervals) {
  std::vector<HeightInterval> table;
  for (const auto& [low, high] : HeightRows(Correct(height, interval, userIntervals)))
    table.push_back({static_cast<float>(low), static_cast<float>(high)});
  return table;
}

}  // namespace gustline::geometry
