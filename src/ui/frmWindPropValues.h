#pragma once

#include <string>

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The values of the wind properties dialog, as its controls hold them: option indices,
// ticks, and field texts. Loaded from the named cells of `WindData` and written back.
struct WindProperties {
  int system = 0;              // Option1
  int structure = 0;           // Option2
  int table64 = 1;             // Option7: the enclosure class, 0 open, 1 partially, 2 enclosed
  bool kd = true;              // Check2
  int categoryOption = 0;      // Option3: I, II, III, IV
  bool hurricane = false;      // ChkHurricane
  int exposure = 2;            // Option4 offers B, C, D (1 to 3); a stored A keeps no button
  std::string windSpeed;       // Text6
  std::string meanSeaLevel;    // Text7
  std::string height;          // Text1
  std::string width;           // Text2
  std::string depth;           // Text3
  std::string frequency;       // Text4
  std::string dampingPercent;  // Text5, the cell holds the fraction
  int hillType = 4;            // Option6
  std::string hillHeight;
  std::string hillLh;
  std::string hillX;
  int gustType = 0;            // Option5
  int figure = 1;              // from List1
  int table = 0;               // from List2, 1-based; 0 is nothing chosen
  bool computeRi = false;      // Option8
  std::string aog;             // TextAog, written as it stands
  std::string vi;              // TextVi
  double table66RoofType = 1;  // carried from the figure dialogs, written back unchanged
  double note5Applies = 0;
  int interval = 0;  // read only: 5 takes the height from the user's intervals
};

inline constexpr int kTopographyTab = 4;

// The stored `Category`: 4 is category I with "Hurricane Prone Region with V > 100" ticked.
int CategoryValue(int categoryOption, bool hurricane);
// Option and tick for a stored `Category`.
void SetCategory(WindProperties& values, int category);

WindProperties LoadWindProperties(wb::Workbook& project);

// Writes every cell of the dialog, as its deactivation does after OK; `tab` is the tab on
// show, whose topography path also resets the qi height of Figure 6-6 to `Height`.
void SaveWindProperties(wb::Workbook& project, const WindProperties& values, int tab);

}  // namespace gustline
