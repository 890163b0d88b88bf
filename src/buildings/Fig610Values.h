#pragma once

#include <string>

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Figure 6-10 dialog as it shows them.
struct Fig610Values {
  std::string roofAngle;         // Text1, `Figure64Angle`, "0.00"
  bool hasParapet = false;       // Check1
  std::string parapetElevation;  // Text2
};

Fig610Values LoadFig610(wb::Workbook& project);
void SaveFig610(wb::Workbook& project, const Fig610Values& values);

}  // namespace gustline
