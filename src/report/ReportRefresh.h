#pragma once

#include <string>
#include <string_view>

namespace gustline {
class ApplicationView;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// Mouse pointers of the report book.
inline constexpr int kArrowPointer = 1;
inline constexpr int kHourglassPointer = 11;

// Brings a template into the report through its temporary file (TemporaryBookPath), so
// that sheets, names, formats, objects and links all come across. The file stays for the
// next build. A file that cannot be written raises FacilityError, and the report is then
// as it was.
void LoadTemplateToReport(const wb::Workbook& source, wb::Workbook& report);

// Re-enters every formula of the report, which binds its `[WindData]` links to the open
// project. A cell that does not take its formula back is passed over.
void RefreshReportLinks(wb::Workbook& report, ApplicationView& view);

// Sets every sheet up for viewing: display switches off, view at A1, automatic calculation
// back on, rows shown to 55 or LastRow + 5; with `HillType` 4 the ten rows under
// "Topography" on page 2 are hidden. Ends on sheet 1.
void FormatReportSheets(wb::Workbook& report, wb::Workbook& project);

// The print setup of each sheet, from the first to the smaller of the two sheet counts,
// with both active sheets restored.
void CopyPageSetup(wb::Workbook& from, wb::Workbook& to);

}  // namespace gustline::report
