#pragma once

#include <string>

#include "core/workbook/SheetSetup.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Page Setup dialog as it shows them.
struct PageSetupValues {
  std::string header;             // Text1
  std::string footer;             // Text2
  std::string topMargin;          // Text3, inches
  std::string bottomMargin;       // Text4
  std::string leftMargin;         // Text5
  std::string rightMargin;        // Text6
  bool fitToPages = true;         // Option1_1 rather than Option1_0 (a scale in per cent)
  std::string scale;              // Text9, per cent
  std::string pagesWide;          // Text7
  std::string pagesTall;          // Text8, 0 for as many as the sheet needs
  bool centerHorizontal = false;  // Check1_0
  bool centerVertical = false;    // Check1_1
  bool gridLines = false;         // Check1_2
  bool blackAndWhite = false;     // Check1_3
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
