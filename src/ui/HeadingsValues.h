#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "core/Prompt.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The heading lines of every report page, as the Page Headings dialog shows them.
struct HeadingsValues {
  std::string company;
  std::string project;
  std::string location;
  std::string subject;
  std::string fileNo;
  std::string engineer;
  std::string date;
};

// The control array Text1 holds the heading lines, Text2 the date; all are texts.
inline constexpr rules::FormField<HeadingsValues> kHeadingsFields[] = {
    {.control = "Text1_0", .member = &HeadingsValues::company, .cell = "Company", .format = "@"},
    {.control = "Text1_1", .member = &HeadingsValues::project, .cell = "Project", .format = "@"},
    {.control = "Text1_2", .member = &HeadingsValues::location, .cell = "Location", .format = "@"},
    {.control = "Text1_3", .member = &HeadingsValues::subject, .cell = "Subject", .format = "@"},
    {.control = "Text1_4", .member = &HeadingsValues::fileNo, .cell = "FileNo", .format = "@"},
    {.control = "Text1_5", .member = &HeadingsValues::engineer, .cell = "Engineer", .format = "@"},
    {.control = "Text2", .member = &HeadingsValues::date, .cell = "Date", .format = "@"},
};

// Reads the seven cells. `Date` holds =NOW() until the dialog first writes it, so its
// serial number shows as a short date; an empty `Date` shows today.
HeadingsValues LoadHeadings(wb::Workbook& project);

// Writes the seven cells as texts; from then on `Date` no longer follows the clock.
void SaveHeadings(wb::Workbook& project, const HeadingsValues& values);

// A date in the short date form "m/d/yyyy".
std::string ShortDate(std::chrono::year_month_day date);
std::string TodayShortDate();

// A text taken as a date when it reads as one (a day serial, "m/d/yy", "m/d/yyyy",
// "m-d-yyyy" or "yyyy-m-d") and written in the short date form; any other text as it is.
std::string NormalizeDate(std::string_view text);

// The box that a heading field emptied by the user gives at once.
Message ZeroLengthHeadingMessage();

}  // namespace gustline
