#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace gustline::rules {

// The member of a dialog's values that a control holds: a text box's text, a tick, or an
// index (the option chosen in an option array, the row of a list, a slider's position).
template <typename Values>
using FieldMember = std::variant<std::string Values::*, bool Values::*, int Values::*>;

// One line of a dialog's field table: the control by its object name, the member of the
// values it shows, and the named cell of the project it is loaded from and saved to. An
// option array goes by its stem, Option1 for Option1_0, Option1_1 ...; a tick held by a
// pair of options is the second one set. Fields without a cell are loaded and saved by
// the dialog's own functions.
template <typename Values>
struct FormField {
  std::string_view control;
  FieldMember<Values> member;
  std::string_view cell = {};
  std::string_view rule = {};           // a text box's limits, checked at OK: ">=0,<=90"
  std::string_view format = "General";  // how a number is shown; "@" keeps the cell's text
  double perCell = 1;                   // the field shows the cell times this: per cent
  int firstOption = 0;                  // what the first option of an array stands for
};

}  // namespace gustline::rules
