#pragma once

#include <string>
#include <string_view>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figures 6-11 to 6-15 as it shows them. The roof zones and
// the angle are those of the roof type chosen.
struct Fig611Values {
  int roofType = 0;  // gabled and hipped, multispan gabled, monoslope, sawtooth
  std::string angle;
  std::string zone1;
  std::string zone2;
  std::string zone3;
  std::string zone2p;  // zones 2' and 3' of monoslope roofs
  std::string zone3p;
  std::string zone4;
  std::string zone5;
  bool hasParapet = false;
  std::string parapetElevation;
  int parapetGCpi = 0;  // 0 open, 1 partially enclosed, 2 enclosed
};

// The cells that the roof zones and the angle show and write, by roof type.
struct Fig611RoofCells {
  std::string_view zone1;
  std::string_view zone2;
  std::string_view zone3;
  std::string_view angle;
};

inline constexpr Fig611RoofCells kFig611RoofCells[] = {
    {"Figure65BZone1", "Figure65BZone2", "Figure65BZone3", "Figure65BAngle"},
    {"Figure66Zone1", "Figure66Zone2", "Figure66Zone3", "Figure66Angle"},
    {"Figure67AZone1", "Figure67AZone2", "Figure67AZone3", "Figure67AAngle"},
    {"Figure67BZone1", "Figure67BZone2", "Figure67BZone3", "Figure67BAngle"},
};

inline constexpr int kMonoslopeRoof = 2;

// Zones 2' and 3', written for monoslope roofs only.
inline constexpr std::string_view kZone2pCell = "Figure67AZ2p";
inline constexpr std::string_view kZone3pCell = "Figure67AZ3p";

inline constexpr std::string_view kFig611AngleRule = ">=0,<=45";
inline constexpr std::string_view kFig611PrimeZoneRule = ">=1,<=1000";

// The controls of the form; the text boxes are checked at OK in this order. The option
// array Option2 lists enclosed, partially enclosed and open from the top, Option2_2 to
// Option2_0. The roof fields and zones 2' and 3' are stored by LoadFig611 and SaveFig611
// themselves; the slider Slider1 fills the angle.
inline constexpr rules::FormField<Fig611Values> kFig611Fields[] = {
    {.control = "Text6", .member = &Fig611Values::angle, .rule = kFig611AngleRule},
    {.control = "Text8", .member = &Fig611Values::zone3p, .rule = kFig611PrimeZoneRule},
    {.control = "Text7", .member = &Fig611Values::zone2p, .rule = kFig611PrimeZoneRule},
    {.control = "Option1", .member = &Fig611Values::roofType},
    {.control = "Text1", .member = &Fig611Values::zone1},
    {.control = "Text2", .member = &Fig611Values::zone2},
    {.control = "Text3", .member = &Fig611Values::zone3},
    {.control = "Text4", .member = &Fig611Values::zone4, .cell = "Figure65AZone4"},
    {.control = "Text5", .member = &Fig611Values::zone5, .cell = "Figure65AZone5"},
    {.control = "Check1", .member = &Fig611Values::hasParapet, .cell = "HasParapet"},
    {.control = "Text9", .member = &Fig611Values::parapetElevation, .cell = "ParapetElevation"},
    {.control = "Option2", .member = &Fig611Values::parapetGCpi, .cell = "ParapetGCpi"},
};

// The roof type of the `Figure` of a List1 entry that opens the dialog, 3 to 6.
inline int Fig611RoofType(int figure) {
  return figure - 3;
}

// Zones 2' and 3' and their labels are offered for monoslope roofs only.
inline bool PrimeZonesEnabled(int roofType) {
  return roofType == kMonoslopeRoof;
}

// Reads the dialog's cells, the roof fields those of the roof type.
Fig611Values LoadFig611(wb::Workbook& project, int roofType);

// The roof fields of `values.roofType` from their cells, when the roof type changes.
void LoadFig611Roof(wb::Workbook& project, Fig611Values& values);

// Writes the dialog's cells at OK: first Note 5 of Figure 6-11B, then the roof type's
// cells and the walls, last the parapet.
void SaveFig611(wb::Workbook& project, const Fig611Values& values);

}  // namespace gustline
