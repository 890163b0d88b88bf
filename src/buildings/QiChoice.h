#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// qi of the Figure 6-6 and 6-17 dialogs: qh, or for partially enclosed buildings qi+ at a
// height z. Each dialog keeps the choice in a pair of cells of its own.
struct QiCells {
  std::string_view useQi;  // 1 when qi+ is taken at z
  std::string_view z;
};

// The choice as a dialog shows it, and the enclosure class read at opening.
struct QiChoice {
  bool useQz = false;
  std::string z;  // a stored 0 shows `Height`
  int table64 = 1;
};

// qi may be taken at a height z only for partially enclosed buildings.
inline bool QiChoiceEnabled(int table64) {
  return table64 == 1;
}

// Reads the pair and `Table64`; for a class other than partially enclosed it writes the
// option's cell 0 at once.
QiChoice LoadQi(wb::Workbook& project, const QiCells& cells);

// Writes the pair at OK; for a class other than partially enclosed, qi is qh and its height
// `Height`, whatever the fields held.
void SaveQi(wb::Workbook& project, const QiCells& cells, bool useQz, std::string_view z);

}  // namespace gustline
