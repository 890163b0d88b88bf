#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/rules/FormField.h"

namespace gustline {

// One row of the new-project chooser: the preset's key, the text of `List1` and the plain
// description that `cobDescription` shows beside it.
struct NewProjectRow {
  std::string key;
  std::string listText;
  std::string description;
};

// The row chosen in `List1`, -1 for none.
struct NewProjectChoice {
  int row = 0;
};

inline constexpr rules::FormField<NewProjectChoice> kNewProjectFields[] = {
    {.control = "List1", .member = &NewProjectChoice::row},
};

// The rows in the order of the preset keys: " Normal" first, then "  MWFRS Figure 6-10" ...
const std::vector<NewProjectRow>& NewProjectRows();

// The description of a preset key, by the figure it names; flexible presets share the
// description of their rigid one.
std::string NewProjectDescription(std::string_view key);

}  // namespace gustline
