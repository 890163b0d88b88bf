#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The effective wind areas of the five components and cladding zones of Figure 6-3, sq ft,
// as the dialog shows them.
struct WindAreas {
  std::string zone1;
  std::string zone2;
  std::string zone3;
  std::string zone4;
  std::string zone5;
};

// The roof zones' tables end at 100 sq ft, the walls' at 500.
inline constexpr rules::FormField<WindAreas> kWindAreasFields[] = {
    {.control = "Text1",
     .member = &WindAreas::zone1,
     .cell = "Zone1Area",
     .rule = ">=10.00,<=100.00"},
    {.control = "Text2",
     .member = &WindAreas::zone2,
     .cell = "Zone2Area",
     .rule = ">=10.00,<=100.00"},
    {.control = "Text3",
     .member = &WindAreas::zone3,
     .cell = "Zone3Area",
     .rule = ">=10.00,<=100.00"},
    {.control = "Text4",
     .member = &WindAreas::zone4,
     .cell = "Zone4Area",
     .rule = ">=10.00,<=500.00"},
    {.control = "Text5",
     .member = &WindAreas::zone5,
     .cell = "Zone5Area",
     .rule = ">=10.00,<=500.00"},
};

// The areas on opening; a zone without one (0) is offered 10 sq ft.
WindAreas LoadWindAreas(wb::Workbook& project);
void SaveWindAreas(wb::Workbook& project, const WindAreas& areas);

}  // namespace gustline
