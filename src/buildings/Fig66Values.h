#pragma once

#include <string>

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Figure 6-6 dialog as it shows them.
struct Fig66Values {
  std::string leewardLB;         // Text1, `Figure63LB`, "0.000"
  std::string windwardAngle;     // Text2, `Figure63WinAng`, "0.00"
  std::string leewardAngle;      // Text3, `Figure63LeeAng`, "0.00"
  std::string area;              // Text4, `Figure63Area`, "0.00"
  std::string hL;                // Text5, `Figure63HL`, "0.000"
  bool useQz = false;            // Option1_1 rather than Option1_0 (qi = qh)
  std::string z;                 // Text6, `Fig63Z`; a stored 0 shows `Height`
  bool hasParapet = false;       // Check1
  std::string parapetElevation;  // Text7
  int table64 = 1;               // the enclosure class read at opening
};

// qi may be taken at a height z only for partially enclosed buildings.
inline bool QiChoiceEnabled(int table64) {
  return table64 == 1;
}

// Reads the dialog's cells; for a class other than partially enclosed it writes
// `Fig63UseQi` 0 at once.
Fig66Values LoadFig66(wb::Workbook& project);

// Writes the dialog's cells at OK; for a class other than partially enclosed, qi is qh and
// its height `Height`, whatever the fields held.
void SaveFig66(wb::Workbook& project, const Fig66Values& values);

}  // namespace gustline
