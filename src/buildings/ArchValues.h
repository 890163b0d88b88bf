#pragma once

#include <string>
#include <string_view>

#include "buildings/QiChoice.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// How an arched roof of Figure 6-8 stands, the value of `Table_65`.
enum ArchSupport : int { kRoofOnElevatedStructure = 0, kRoofSpringingFromGround = 1 };

inline constexpr std::string_view kRiseToSpanRule = ">=0,<=0.6";

// The fields of the dialog of Figure 6-8 for the main wind-force system. The walls are those
// of Figure 6-6; so is the roof when the wind blows parallel to the axis of the arch.
struct Figure68Values {
  int support = kRoofOnElevatedStructure;
  std::string riseToSpan;  // r
  std::string leewardLB;   // L/B of the walls
  std::string hL;          // h/L, wind parallel to the axis
  std::string area;        // the area that reduces Cp, wind parallel to the axis
  bool useQz = false;      // rather than qi = qh
  std::string z;           // `Fig63Z`; a stored 0 shows `Height`
  int table64 = 1;         // the enclosure class read at opening
};

// The controls of the form; the text boxes are checked at OK in this order. The option
// arrays are Option1 for the support and Option2 for qi, Option2_0 (qi = qh) and Option2_1
// (qi = qz); qi and its height are stored by LoadFigure68 and SaveFigure68 themselves.
inline constexpr rules::FormField<Figure68Values> kFigure68Fields[] = {
    {.control = "Text4",
     .member = &Figure68Values::area,
     .cell = "Figure63Area",
     .rule = ">=1,<=10000",
     .format = "0.00"},
    {.control = "Text3",
     .member = &Figure68Values::hL,
     .cell = "Figure63HL",
     .rule = ">=0,<=1000.0",
     .format = "0.000"},
    {.control = "Text2",
     .member = &Figure68Values::leewardLB,
     .cell = "Figure68LB",
     .rule = ">=0,<=1000.0",
     .format = "0.000"},
    {.control = "Text1",
     .member = &Figure68Values::riseToSpan,
     .cell = "Table65Ratio",
     .rule = kRiseToSpanRule,
     .format = "0.000"},
    {.control = "Option1", .member = &Figure68Values::support, .cell = "Table_65"},
    {.control = "Option2", .member = &Figure68Values::useQz},
    {.control = "Text5", .member = &Figure68Values::z},
};

// The fields of the dialog of Figure 6-8 for components and cladding. The perimeter zones
// 1 to 3 of the roof are read by the areas and the angle of Figure 6-11, whose cells they
// share.
struct Figure68compValues {
  int support = kRoofOnElevatedStructure;
  std::string riseToSpan;
  std::string zone1;
  std::string zone2;
  std::string zone3;
  std::string angle;
  bool useQz = false;
  std::string z;  // `T65Z`; a stored 0 shows `Height`
  int table64 = 1;
};

inline constexpr std::string_view kArchZoneRule = ">=1,<=1000";

// The controls of the form; the text boxes are checked at OK in this order. The slider
// Slider1 fills the angle; qi and its height are stored by LoadFigure68comp and
// SaveFigure68comp themselves.
inline constexpr rules::FormField<Figure68compValues> kFigure68compFields[] = {
    {.control = "Text6",
     .member = &Figure68compValues::angle,
     .cell = "Figure65BAngle",
     .rule = ">=0,<=45",
     .format = "0.00"},
    {.control = "Text1",
     .member = &Figure68compValues::riseToSpan,
     .cell = "T65Ratio",
     .rule = kRiseToSpanRule,
     .format = "0.000"},
    {.control = "Text4",
     .member = &Figure68compValues::zone1,
     .cell = "Figure65BZone1",
     .rule = kArchZoneRule},
    {.control = "Text2",
     .member = &Figure68compValues::zone2,
     .cell = "Figure65BZone2",
     .rule = kArchZoneRule},
    {.control = "Text3",
     .member = &Figure68compValues::zone3,
     .cell = "Figure65BZone3",
     .rule = kArchZoneRule},
    {.control = "Option1", .member = &Figure68compValues::support, .cell = "Table_65"},
    {.control = "Option2", .member = &Figure68compValues::useQz},
    {.control = "Text5", .member = &Figure68compValues::z},
};

// Read the dialogs' cells; for a class other than partially enclosed they write the option
// of qi 0 at once.
Figure68Values LoadFigure68(wb::Workbook& project);
Figure68compValues LoadFigure68comp(wb::Workbook& project);

// Write the dialogs' cells at OK; for a class other than partially enclosed, qi is qh and
// its height `Height`, whatever the fields held.
void SaveFigure68(wb::Workbook& project, const Figure68Values& values);
void SaveFigure68comp(wb::Workbook& project, const Figure68compValues& values);

}  // namespace gustline
