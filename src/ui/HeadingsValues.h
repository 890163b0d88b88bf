#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "core/Prompt.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The heading lines of every report page, as the Page Headings dialog shows them.
struct HeadingsValues {
  std::string company;   // Text1_0, `Company`
  std::string project;   // Text1_1, `Project`
  std::string location;  // Text1_2, `Location`
  std::string subject;   // Text1_3, `Subject`
  std::string fileNo;    // Text1_4, `FileNo`
  std::string engineer;  // Text1_5, `Engineer`
  std::string date;      // Text2, `Date`
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
