#pragma once

#include <string>

namespace gustline::wb {

// The print setup of one sheet. Margins in inches; PrintScale as a percentage, or fit to
// pagesWide by pagesTall pages when fitToPages is set.
struct PrintSetup {
  std::string header;
  std::string footer;
  double leftMargin = 0.75;
  double rightMargin = 0.75;
  double topMargin = 1.0;
  double bottomMargin = 1.0;
  bool gridLines = false;
  bool rowHeading = false;
  bool hCenter = false;
  bool vCenter = false;
  bool noColor = false;
  bool leftToRight = false;
  bool landscape = false;
  double scale = 100;
  bool fitToPages = false;
  int pagesWide = 1;
  int pagesTall = 1;
  std::string printArea;
  bool operator==(const PrintSetup&) const = default;
};

// The display switches of a sheet; a report turns them all off for viewing.
struct DisplaySwitches {
  bool showTabs = true;
  bool rowHeadings = true;
  bool colHeadings = true;
  bool gridLines = true;
  bool allowInCellEditing = true;
  bool allowFillRange = true;
  bool allowMoveRange = true;
  bool allowDelete = true;
  bool allowResize = true;
  bool operator==(const DisplaySwitches&) const = default;
};

// A graphic object of a sheet (a picture is type 10; check boxes and the like have a
// linked cell). The engine keeps them and writes them back; nothing draws them yet.
struct SheetObject {
  int id = 0;
  int type = 0;
  std::string name;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // position in points from the sheet's top left
  std::string linkedCell;                 // A1 text, or empty
  double value = 0;
  bool selected = false;
  std::string data;  // the object's payload (a picture's file name, a caption), kept as text
  bool operator==(const SheetObject&) const = default;
};

}  // namespace gustline::wb
