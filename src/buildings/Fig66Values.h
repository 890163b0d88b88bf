#pragma once

#include <string>

#include "buildings/QiChoice.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Figure 6-6 dialog as it shows them.
struct Fig66Values {
  std::string leewardLB;
  std::string windwardAngle;
  std::string leewardAngle;
  std::string area;
  std::string hL;
  bool useQz = false;  // rather than qi = qh
  std::string z;       // `Fig63Z`; a stored 0 shows `Height`
  bool hasParapet = false;
  std::string parapetElevation;
  int table64 = 1;  // the enclosure class read at opening
};

// The controls of the form; the text boxes are checked at OK in this order. The sliders
// Slider1 and Slider2 fill Text2 and Text3; qi and its height are stored by LoadFig66 and
// SaveFig66 themselves.
inline constexpr rules::FormField<Fig66Values> kFig66Fields[] = {
    {.control = "Text4",
     .member = &Fig66Values::area,
     .cell = "Figure63Area",
     .rule = ">=1,<=10000",
     .format = "0.00"},
    {.control = "Text2",
     .member = &Fig66Values::windwardAngle,
     .cell = "Figure63WinAng",
     .rule = ">=0,<=90",
     .format = "0.00"},
    {.control = "Text3",
     .member = &Fig66Values::leewardAngle,
     .cell = "Figure63LeeAng",
     .rule = ">=0,<=90",
     .format = "0.00"},
    {.control = "Text5",
     .member = &Fig66Values::hL,
     .cell = "Figure63HL",
     .rule = ">=0,<=1000",
     .format = "0.000"},
    {.control = "Text1",
     .member = &Fig66Values::leewardLB,
     .cell = "Figure63LB",
     .rule = ">=0,<=1000.0",
     .format = "0.000"},
    {.control = "Option1", .member = &Fig66Values::useQz},
    {.control = "Text6", .member = &Fig66Values::z},
    {.control = "Check1", .member = &Fig66Values::hasParapet, .cell = "HasParapet"},
    {.control = "Text7", .member = &Fig66Values::parapetElevation, .cell = "ParapetElevation"},
};

// Reads the dialog's cells; for a class other than partially enclosed it writes
// `Fig63UseQi` 0 at once.
Fig66Values LoadFig66(wb::Workbook& project);

// Writes the dialog's cells at OK; for a class other than partially enclosed, qi is qh and
// its height `Height`, whatever the fields held.
void SaveFig66(wb::Workbook& project, const Fig66Values& values);

}  // namespace gustline
