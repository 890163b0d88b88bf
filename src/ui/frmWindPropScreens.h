#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Prompt.h"

namespace gustline {

// What UpdatePressureScreen shows for a system and structure: the captions of Option2,
// the equation line Label1, the figure line Label3, and the warning box, if any.
struct PressureScreen {
  std::array<std::string, 3> structureCaptions;
  bool thirdStructureVisible = true;
  int structure = 0;  // a third structure falls to the second where it is hidden
  std::string equation;
  std::string figures;
  std::optional<Message> warning;
};
PressureScreen PressureScreenFor(int system, int structure, double height);

// What UpdateForceFactorScreen shows: the figures of List1 for buildings, or for open
// structures List1 and Command10 off and the table list List2 with Command5 on.
struct ForceFactorScreen {
  std::vector<std::string> figureItems;
  bool figuresEnabled = true;
  bool tablesEnabled = false;
};
ForceFactorScreen ForceFactorScreenFor(int system, int structure);
const std::vector<std::string>& TableItems();

// The List1 entry that a stored `Figure` selects, or -1 to leave the list alone, as a
// components figure outside the list does.
int FigureListIndex(int system, int structure, int figure);

// Which Option5 buttons are enabled, and the gust type that follows from them.
struct GustScreen {
  std::array<bool, 4> enabled{};
  int gustType = 0;
};
GustScreen GustScreenFor(int system, int structure, int gustType);

// The height field and its label are off when the heights come from the user's intervals.
bool HeightEditable(int interval);

// The figure dialogs that Command10 opens, found by a List1 entry's text.
enum class FigureDialog {
  None,
  Fig66,
  Fig610,
  Fig611,
  Fig617,
  Figure68,
  Figure68comp,
  Figure67,
  Fig616
};
enum class HeightRule { Any, AtMost60, Over60 };
struct FigureChoice {
  FigureDialog dialog = FigureDialog::None;
  int figure = 0;  // the `Figure` value of the entry; 0 for "None"
  HeightRule heightRule = HeightRule::Any;
  bool writesTable64 = false;
};
// The arched roofs of System 1 take the components dialog Figure68comp.
FigureChoice FigureChoiceOf(std::string_view item, int system);

// The dialogs that Command5 opens, by the row of the List2 entry chosen. Figure619 serves
// the chimneys of Figure 6-21, Figure621 the open signs of Figure 6-22 and Figure622 the
// trussed towers of Figure 6-23; Fig619 the free roofs of Figures 6-19A to C.
enum class TableDialog {
  None,
  Figure618,
  Fig619,
  Figure620,
  Figure619,
  Figure621,
  Figure622,
  TableSpecial
};
TableDialog TableDialogOf(int row);

// The "Height Range Error" box when the height does not fit the figure's rule.
std::optional<Message> HeightRangeError(HeightRule rule, double height);

// OK warns about the force coefficients when the height changed under a figure of buildings.
bool FigureDependsOnHeight(int system, int figure);
Message NewHeightWarning();

}  // namespace gustline
