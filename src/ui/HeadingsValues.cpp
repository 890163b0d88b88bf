#include "ui/HeadingsValues.h"

#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <optional>
#include <vector>

#include "core/TextTools.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

using namespace std::chrono;

// Day serials count from 1899-12-30, as the workbook's NOW() gives them.
constexpr sys_days kSerialEpoch = sys_days{year{1899} / December / 30};

std::optional<year_month_day> FromSerial(double serial) {
  if (!std::isfinite(serial) || serial < 1 || serial > 2958465) return std::nullopt;
  return year_month_day{kSerialEpoch + days{static_cast<long>(std::floor(serial))}};
}

std::optional<int> Whole(std::string_view digits) {
  if (digits.empty() || digits.size() > 4) return std::nullopt;
  int value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return value;
}

std::vector<std::string_view> SplitAt(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, start)) {
    parts.push_back(text.substr(start, at - start));
    start = at + 1;
  }
  parts.push_back(text.substr(start));
  return parts;
}

// Two-digit years below 30 fall in this century, the others in the last.
int FullYear(int yearValue, std::size_t digits) {
  if (digits > 2) return yearValue;
  return yearValue < 30 ? 2000 + yearValue : 1900 + yearValue;
}

std::optional<year_month_day> FromParts(std::string_view text, char separator) {
  const std::vector<std::string_view> parts = SplitAt(text, separator);
  if (parts.size() != 3) return std::nullopt;
  std::array<int, 3> numbers{};
  for (std::size_t i = 0; i < 3; ++i) {
    const auto number = Whole(parts[i]);
    if (!number) return std::nullopt;
    numbers[i] = *number;
  }
  const bool yearFirst = parts[0].size() == 4;
  const int y = yearFirst ? numbers[0] : FullYear(numbers[2], parts[2].size());
  const int m = yearFirst ? numbers[1] : numbers[0];
  const int d = yearFirst ? numbers[2] : numbers[1];
  const year_month_day date{year{y}, month{static_cast<unsigned>(m)},
                            day{static_cast<unsigned>(d)}};
  if (!date.ok()) return std::nullopt;
  return date;
}

std::optional<year_month_day> ReadDate(std::string_view text) {
  const std::string_view trimmed = TrimBlanks(text);
  if (const auto serial = rules::FieldNumber(trimmed)) return FromSerial(*serial);
  for (const char separator : {'/', '-'}) {
    if (const auto date = FromParts(trimmed, separator)) return date;
  }
  return std::nullopt;
}

}  // namespace

std::string ShortDate(year_month_day date) {
  return std::to_string(static_cast<unsigned>(date.month())) + "/" +
         std::to_string(static_cast<unsigned>(date.day())) + "/" +
         std::to_string(static_cast<int>(date.year()));
}

std::string TodayShortDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return ShortDate(year_month_day{year{local.tm_year + 1900},
                                  month{static_cast<unsigned>(local.tm_mon + 1)},
                                  day{static_cast<unsigned>(local.tm_mday)}});
}

std::string NormalizeDate(std::string_view text) {
  const auto date = ReadDate(text);
  return date ? ShortDate(*date) : std::string(text);
}

HeadingsValues LoadHeadings(wb::Workbook& project) {
  HeadingsValues v;
  rules::LoadFields(project, kHeadingsFields, v);
  v.date = v.date.empty() ? TodayShortDate() : NormalizeDate(v.date);
  return v;
}

void SaveHeadings(wb::Workbook& project, const HeadingsValues& v) {
  rules::SaveFields(project, kHeadingsFields, v);
}

Message ZeroLengthHeadingMessage() {
  return Message{"Heading Error", "Zero length values are not allowed", PromptIcon::Stop,
                 PromptButtons::Ok};
}

}  // namespace gustline
