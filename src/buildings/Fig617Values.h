#pragma once

#include <string>

#include "buildings/QiChoice.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Figure 6-17 dialog as it shows them.
struct Fig617Values {
  std::string angle;
  std::string zone1;
  std::string zone2;
  std::string zone3;
  std::string zone4;
  std::string zone5;
  bool useQz = false;  // rather than qi = qh
  std::string z;       // `Fig68Z`; a stored 0 shows `Height`
  bool hasParapet = false;
  std::string parapetElevation;
  std::string parapetHeight;
  int parapetGCpi = 0;  // 0 open, 1 partially enclosed, 2 enclosed
  int table64 = 1;      // the enclosure class read at opening
};

// The controls of the form; the text boxes are checked at OK in this order. The option
// array Option2 lists enclosed, partially enclosed and open from the top, Option2_2 to
// Option2_0; the slider Slider1 fills the angle. qi and its height are stored by
// LoadFig617 and SaveFig617 themselves.
inline constexpr rules::FormField<Fig617Values> kFig617Fields[] = {
    {.control = "Text6",
     .member = &Fig617Values::angle,
     .cell = "Figure68Angle",
     .rule = ">=0,<=45",
     .format = "0.00"},
    {.control = "Text1", .member = &Fig617Values::zone1, .cell = "Figure68Zone1"},
    {.control = "Text2", .member = &Fig617Values::zone2, .cell = "Figure68Zone2"},
    {.control = "Text3", .member = &Fig617Values::zone3, .cell = "Figure68Zone3"},
    {.control = "Text4", .member = &Fig617Values::zone4, .cell = "Figure68Zone4"},
    {.control = "Text5", .member = &Fig617Values::zone5, .cell = "Figure68Zone5"},
    {.control = "Option1", .member = &Fig617Values::useQz},
    {.control = "Text7", .member = &Fig617Values::z},
    {.control = "Check1", .member = &Fig617Values::hasParapet, .cell = "HasParapet"},
    {.control = "Text8", .member = &Fig617Values::parapetElevation, .cell = "ParapetElevation"},
    {.control = "Text9", .member = &Fig617Values::parapetHeight, .cell = "ParapetHeight"},
    {.control = "Option2", .member = &Fig617Values::parapetGCpi, .cell = "ParapetGCpi"},
};

// Reads the dialog's cells; for a class other than partially enclosed it writes
// `Fig68UseQi` 0 at once.
Fig617Values LoadFig617(wb::Workbook& project);

// Writes the dialog's cells at OK; for a class other than partially enclosed, qi is qh and
// its height `Height`, whatever the fields held.
void SaveFig617(wb::Workbook& project, const Fig617Values& values);

}  // namespace gustline
