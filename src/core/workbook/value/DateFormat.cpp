#include "core/workbook/value/DateFormat.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>

#include "core/workbook/value/NumberFormat.h"

namespace gustline::wb {
namespace {

constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};
constexpr std::array<const char*, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                  "Thursday", "Friday", "Saturday"};

struct DateParts {
  int year, month, day, weekday, hour, minute, second;
};

// 31 December 9999, the last day that a date shows.
constexpr double kLastDay = 2958465;

// Calendar date and time of a serial date (serial 25569 is 1 January 1970); nullopt before
// day 0 and after the last day.
std::optional<DateParts> FromSerial(double serial) {
  const double wholeSeconds = std::round(serial * 86400.0);
  if (serial < 0 || !(wholeSeconds < (kLastDay + 1) * 86400.0)) return std::nullopt;
  const long long days = static_cast<long long>(std::floor(wholeSeconds / 86400.0));
  const long long secondOfDay = static_cast<long long>(wholeSeconds) - days * 86400;
  // Serial 60 is the 29 February 1900 that spreadsheets count, and the days before it
  // stand one later than the calendar would put them.
  if (days == 60) {
    return DateParts{1900,
                     2,
                     29,
                     3,
                     static_cast<int>(secondOfDay / 3600),
                     static_cast<int>(secondOfDay / 60 % 60),
                     static_cast<int>(secondOfDay % 60)};
  }
  const long long calendarDays = days < 60 ? days + 1 : days;
  const long long z = calendarDays - 25569 + 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const long long doe = z - era * 146097;
  const long long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const long long mp = (5 * doy + 2) / 153;
  const int day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  const int year = static_cast<int>(yoe + era * 400 + (month <= 2 ? 1 : 0));
  const int weekday = static_cast<int>(((calendarDays % 7) + 7 + 6) % 7);
  return DateParts{year,
                   month,
                   day,
                   weekday,
                   static_cast<int>(secondOfDay / 3600),
                   static_cast<int>(secondOfDay / 60 % 60),
                   static_cast<int>(secondOfDay % 60)};
}

std::string Padded(int value, std::size_t width) {
  std::string text = std::to_string(value);
  return std::string(text.size() < width ? width - text.size() : 0, '0') + text;
}

bool IsCode(char c) {
  const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower == 'y' || lower == 'm' || lower == 'd' || lower == 'h' || lower == 's';
}

}  // namespace

std::optional<std::string> FormatDate(double serial, std::string_view section) {
  bool hasCode = false;
  for (std::size_t i = 0; i < section.size(); ++i) {
    if (section[i] == '"' || section[i] == '[') {
      i = section.find(section[i] == '"' ? '"' : ']', i + 1);
      if (i == std::string_view::npos) break;
    } else if (section[i] == '\\') {
      ++i;
    } else if (section[i] == '0' || section[i] == '#') {
      return std::nullopt;
    } else if (IsCode(section[i])) {
      hasCode = true;
    }
  }
  if (!hasCode) return std::nullopt;
  const std::optional<DateParts> date = FromSerial(serial);
  if (!date) return std::string(kOverflowMarks);

  const DateParts& parts = *date;
  const bool twelveHour = section.find("AM/PM") != std::string_view::npos;
  std::string text;
  bool afterHour = false;
  for (std::size_t i = 0; i < section.size();) {
    const char c = section[i];
    if (c == '"') {
      const std::size_t end = section.find('"', i + 1);
      text += section.substr(i + 1, end - i - 1);
      i = end == std::string_view::npos ? section.size() : end + 1;
      continue;
    }
    if (section.substr(i, 5) == "AM/PM") {
      text += parts.hour < 12 ? "AM" : "PM";
      i += 5;
      continue;
    }
    if (c == '\\' && i + 1 < section.size()) {
      text += section[i + 1];
      i += 2;
      continue;
    }
    if (c == '[') {
      const std::size_t end = section.find(']', i);
      i = end == std::string_view::npos ? section.size() : end + 1;
      continue;
    }
    if (!IsCode(c)) {
      text += c;
      ++i;
      continue;
    }
    const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    std::size_t run = 1;
    while (i + run < section.size() &&
           std::tolower(static_cast<unsigned char>(section[i + run])) == lower) {
      ++run;
    }
    switch (lower) {
      case 'y':
        text += run <= 2 ? Padded(parts.year % 100, 2) : Padded(parts.year, 4);
        break;
      case 'd':
        if (run <= 2)
          text += Padded(parts.day, run);
        else if (run == 3)
          text += std::string(kWeekdays[parts.weekday]).substr(0, 3);
        else
          text += kWeekdays[parts.weekday];
        break;
      case 'h': {
        int hour = parts.hour;
        if (twelveHour) hour = hour % 12 == 0 ? 12 : hour % 12;
        text += Padded(hour, run);
        break;
      }
      case 's':
        text += Padded(parts.second, run);
        break;
      default:  // 'm': minutes right after an hour, otherwise the month
        if (afterHour && run <= 2) {
          text += Padded(parts.minute, run);
        } else if (run <= 2) {
          text += Padded(parts.month, run);
        } else {
          const std::string name = kMonths[parts.month - 1];
          text += run == 3 ? name.substr(0, 3) : name;
        }
        break;
    }
    afterHour = lower == 'h';
    i += run;
  }
  return text;
}

}  // namespace gustline::wb
