#pragma once

#include <span>
#include <string_view>

namespace gustline {
class Prompt;
}

namespace gustline::rules {

// The rule of a dialog's field that writes one named cell of the project, so that input
// which does not come through the dialog (the command line's --set) meets the same limits.
// Taken from the dialogs' field tables.
struct CellRule {
  std::string_view dialog;
  std::string_view field;  // the text box
  std::string_view cell;
  std::string_view rule;
  double fieldPerCell;  // the field shows the cell's value times this: damping in per cent
};

std::span<const CellRule> CellRules();

// The rule of a cell by its defined name, compared without regard to case; nullptr for a
// cell that no dialog limits.
const CellRule* FindCellRule(std::string_view cell);

// Tests a text about to be written to a cell as the cell's dialog tests it at OK, with the
// dialog's message on a failure; true for a cell that no dialog limits.
bool CheckCellInput(Prompt& prompt, std::string_view cell, std::string_view text);

}  // namespace gustline::rules
