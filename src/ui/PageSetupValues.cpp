#include "ui/PageSetupValues.h"

#include <cmath>
#include <cstdint>

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

std::string General(double number) {
  return wb::FormatNumber(number, "General");
}

// The field checks keep these within range before they are narrowed.
int WholeValue(const std::string& text) {
  return static_cast<int>(std::lround(rules::FieldValue(text)));
}

}  // namespace

PageSetupValues PageSetupFields(const wb::PrintSetup& setup) {
  PageSetupValues v;
  v.header = setup.header;
  v.footer = setup.footer;
  v.topMargin = General(setup.topMargin);
  v.bottomMargin = General(setup.bottomMargin);
  v.leftMargin = General(setup.leftMargin);
  v.rightMargin = General(setup.rightMargin);
  v.fitToPages = setup.fitToPages;
  v.scale = General(setup.scale);
  v.pagesWide = General(setup.pagesWide);
  v.pagesTall = General(setup.pagesTall);
  v.centerHorizontal = setup.hCenter;
  v.centerVertical = setup.vCenter;
  v.gridLines = setup.gridLines;
  v.blackAndWhite = setup.noColor;
  return v;
}

wb::PrintSetup WithPageSetupFields(wb::PrintSetup setup, const PageSetupValues& v) {
  using rules::FieldValue;
  setup.header = v.header;
  setup.footer = v.footer;
  setup.topMargin = FieldValue(v.topMargin);
  setup.bottomMargin = FieldValue(v.bottomMargin);
  setup.leftMargin = FieldValue(v.leftMargin);
  setup.rightMargin = FieldValue(v.rightMargin);
  setup.fitToPages = v.fitToPages;
  // The scale is kept as a 16-bit whole per cent.
  setup.scale = static_cast<std::int16_t>(WholeValue(v.scale));
  setup.pagesWide = WholeValue(v.pagesWide);
  setup.pagesTall = WholeValue(v.pagesTall);
  setup.hCenter = v.centerHorizontal;
  setup.vCenter = v.centerVertical;
  setup.gridLines = v.gridLines;
  setup.noColor = v.blackAndWhite;
  return setup;
}

PageSetupValues LoadPageSetup(const wb::Workbook& report) {
  return PageSetupFields(report.GetSheet(report.ActiveSheet()).Print());
}

void ApplyPageSetupToSheet(const wb::PrintSetup& setup, wb::PrintSetup& sheet) {
  sheet.bottomMargin = setup.bottomMargin;
  sheet.topMargin = setup.topMargin;
  sheet.leftMargin = setup.leftMargin;
  sheet.rightMargin = setup.rightMargin;
  sheet.rowHeading = false;
  sheet.header = setup.header;
  sheet.footer = setup.footer;
  sheet.hCenter = setup.hCenter;
  sheet.vCenter = setup.vCenter;
  sheet.gridLines = setup.gridLines;
  sheet.noColor = setup.noColor;
  sheet.scale = setup.scale;
  sheet.fitToPages = setup.fitToPages;
  sheet.pagesWide = setup.pagesWide;
  sheet.pagesTall = setup.pagesTall;
  sheet.landscape = setup.landscape;
  sheet.leftToRight = false;
}

void SavePageSetup(wb::PrintSetup& pageSetup, wb::Workbook& report, const PageSetupValues& values,
                   bool printerLandscape) {
  pageSetup = WithPageSetupFields(pageSetup, values);
  pageSetup.landscape = printerLandscape;
  for (int sheet = 1; sheet <= report.SheetCount(); ++sheet) {
    if (sheet == report.ActiveSheet() || report.SheetSelected(sheet)) {
      ApplyPageSetupToSheet(pageSetup, report.GetSheet(sheet).Print());
    }
  }
}

}  // namespace gustline
