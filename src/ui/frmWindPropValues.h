#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The values of the wind properties dialog, as its controls hold them: option indices,
// ticks, and field texts. Loaded from the named cells of `WindData` and written back.
struct WindProperties {
  int system = 0;
  int structure = 0;
  int table64 = 1;  // the enclosure class: 0 open, 1 partially, 2 enclosed
  bool kd = true;
  int categoryOption = 0;  // I, II, III, IV
  bool hurricane = false;
  int exposure = 2;  // the options offer B, C, D (1 to 3); a stored A sets none
  std::string windSpeed;
  std::string meanSeaLevel;
  std::string height;
  std::string width;
  std::string depth;
  std::string frequency;
  std::string dampingPercent;  // the cell holds the fraction
  int hillType = 4;
  std::string hillHeight;
  std::string hillLh;
  std::string hillX;
  int gustType = 0;
  int figure = 1;          // from List1
  int table = 0;           // from List2, 1-based; 0 is nothing chosen
  bool computeRi = false;  // rather than Ri = 1.0
  std::string aog;         // written as it stands
  std::string vi;
  double table66RoofType = 1;  // carried from the figure dialogs, written back unchanged
  double note5Applies = 0;
  int interval = 0;  // read only: 5 takes the height from the user's intervals
  bool operator==(const WindProperties&) const = default;
};

// The controls of the form; the text boxes are checked at OK in this order. The category
// and Ri are stored by LoadWindProperties and SaveWindProperties themselves.
inline constexpr rules::FormField<WindProperties> kWindPropertiesFields[] = {
    {.control = "Option1", .member = &WindProperties::system, .cell = "System"},
    {.control = "Option2", .member = &WindProperties::structure, .cell = "Structure"},
    {.control = "Option7", .member = &WindProperties::table64, .cell = "Table64"},
    {.control = "Check2", .member = &WindProperties::kd, .cell = "kd"},
    {.control = "Option3", .member = &WindProperties::categoryOption},
    {.control = "ChkHurricane", .member = &WindProperties::hurricane},
    {.control = "Option4",
     .member = &WindProperties::exposure,
     .cell = "Exposure",
     .firstOption = 1},
    {.control = "HillX", .member = &WindProperties::hillX, .cell = "HillX", .rule = ">=1"},
    {.control = "HillLh", .member = &WindProperties::hillLh, .cell = "HillLh", .rule = ">=1"},
    {.control = "HillHeight",
     .member = &WindProperties::hillHeight,
     .cell = "HillHeight",
     .rule = ">=1.0"},
    {.control = "Text3", .member = &WindProperties::depth, .cell = "Depth", .rule = ">=1.0"},
    {.control = "Text2", .member = &WindProperties::width, .cell = "Width", .rule = ">=1.0"},
    {.control = "Text1",
     .member = &WindProperties::height,
     .cell = "Height",
     .rule = ">=1.00,<=2000.00"},
    {.control = "Text5",
     .member = &WindProperties::dampingPercent,
     .cell = "Damping",
     .rule = ">=0.0001,<=50.0",
     .perCell = 100},
    {.control = "Text4",
     .member = &WindProperties::frequency,
     .cell = "Frequency",
     .rule = ">=0,<=100.00"},
    {.control = "Text6",
     .member = &WindProperties::windSpeed,
     .cell = "WindSpeed",
     .rule = ">=0.0,<=500.00",
     .format = "0.00"},
    {.control = "Text7",
     .member = &WindProperties::meanSeaLevel,
     .cell = "MeanSeaLevel",
     .rule = ">=0.0,<=10000"},
    {.control = "Option6", .member = &WindProperties::hillType, .cell = "HillType"},
    {.control = "Option5", .member = &WindProperties::gustType, .cell = "GustType"},
    {.control = "Option8", .member = &WindProperties::computeRi},
    {.control = "TextAog", .member = &WindProperties::aog},
    {.control = "TextVi", .member = &WindProperties::vi},
};

inline constexpr int kTopographyTab = 4;

// The stored `Category`: 4 is category I with "Hurricane Prone Region with V > 100" ticked.
int CategoryValue(int categoryOption, bool hurricane);
// Option and tick for a stored `Category`, in the values of any dialog that shows it.
template <typename Values>
void SetCategory(Values& values, int category) {
  values.hurricane = category == 4;
  values.categoryOption = category == 4 ? 0 : category;
}

WindProperties LoadWindProperties(wb::Workbook& project);

// What the dialog shows when it is activated again: a value that changed in the project
// since `loaded` was read (another project opened, a figure dialog's write) is the
// project's, and the others keep what the dialog shows.
WindProperties MergeProjectChanges(WindProperties shown, const WindProperties& loaded,
                                   const WindProperties& project);

// Writes every cell of the dialog, as its deactivation does after OK; `tab` is the tab on
// show, whose topography path also resets the qi height of Figure 6-6 to `Height`.
void SaveWindProperties(wb::Workbook& project, const WindProperties& values, int tab);

}  // namespace gustline
