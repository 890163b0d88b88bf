#pragma once

#include <string>

#include "core/workbook/model/SheetSetup.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Page Setup dialog as it shows them.
struct PageSetupValues {
  std::string header;
  std::string footer;
  std::string topMargin;  // inches
  std::string bottomMargin;
  std::string leftMargin;
  std::string rightMargin;
  bool fitToPages = true;  // rather than a scale in per cent
  std::string scale;       // per cent
  std::string pagesWide;
  std::string pagesTall;  // 0 for as many as the sheet needs
  bool centerHorizontal = false;
  bool centerVertical = false;
  bool gridLines = false;
  bool blackAndWhite = false;
};

// The controls of the form, which go to the report's page setup rather than to cells; the
// text boxes are checked at OK in this order.
inline constexpr rules::FormField<PageSetupValues> kPageSetupFields[] = {
    {.control = "Text9", .member = &PageSetupValues::scale, .rule = ">=10,<=400"},
    {.control = "Text8", .member = &PageSetupValues::pagesTall, .rule = ">=0,<=10"},
    {.control = "Text7", .member = &PageSetupValues::pagesWide, .rule = ">=1,<=100"},
    {.control = "Text3", .member = &PageSetupValues::topMargin, .rule = ">=0,<=48"},
    {.control = "Text4", .member = &PageSetupValues::bottomMargin, .rule = ">=0,<=48"},
    {.control = "Text5", .member = &PageSetupValues::leftMargin, .rule = ">=0,<=48"},
    {.control = "Text6", .member = &PageSetupValues::rightMargin, .rule = ">=0,<=48"},
    {.control = "Text1", .member = &PageSetupValues::header},
    {.control = "Text2", .member = &PageSetupValues::footer},
    {.control = "Option1", .member = &PageSetupValues::fitToPages},
    {.control = "Check1_0", .member = &PageSetupValues::centerHorizontal},
    {.control = "Check1_1", .member = &PageSetupValues::centerVertical},
    {.control = "Check1_2", .member = &PageSetupValues::gridLines},
    {.control = "Check1_3", .member = &PageSetupValues::blackAndWhite},
};

PageSetupValues PageSetupFields(const wb::PrintSetup& setup);

// The setup with the dialog's fields put in; what the dialog does not show stays.
wb::PrintSetup WithPageSetupFields(wb::PrintSetup setup, const PageSetupValues& values);

// The fields of the report's active sheet, as the dialog opens on them.
PageSetupValues LoadPageSetup(const wb::Workbook& report);

// The page setup applied to one sheet: margins, no row or column headings in print,
// header and footer, centring, grid lines, black and white, scale, orientation and
// top-to-bottom page order. The print area stays.
void ApplyPageSetupToSheet(const wb::PrintSetup& setup, wb::PrintSetup& sheet);

// OK of the dialog: the fields become the program's page setup, landscape when the printer
// prints so, and go to the active sheet of the report and every sheet selected with it.
void SavePageSetup(wb::PrintSetup& pageSetup, wb::Workbook& report, const PageSetupValues& values,
                   bool printerLandscape);

}  // namespace gustline
