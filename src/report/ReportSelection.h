#pragma once

#include <optional>
#include <string>
#include <variant>

#include "core/Prompt.h"
#include "report/TemplateCatalog.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// What the choice of template reads from the project.
struct SelectionInputs {
  int table = 0;
  int figure = 0;
  int system = 0;
  int structure = 0;
  int gustType = 0;
  int roofType = 0;    // Table66RoofType
  bool note5 = false;  // Note5Applies
  double b124 = 0;     // the simplified procedure when above 0
  double height = 0;   // read for open structures only
  double width = 0;
};

// Reads the inputs from the project; open structures also read `Height` and `Width`.
// Facility errors of the named-cell helpers propagate.
SelectionInputs ReadSelectionInputs(wb::Workbook& project);

// The template of the project; its builder is that of its catalog row.
struct ChosenTemplate {
  TemplateId id;
};

// A failed h/w check: its message box; the report stays as it was and nothing else runs.
struct RangeRefusal {
  Message message;
};

// No row of the tables fits: the former report stays, and the steps after the build still
// run. "Invalid roof type" comes with its box.
struct NoTemplate {
  std::optional<Message> message;
};

using Selection = std::variant<ChosenTemplate, RangeRefusal, NoTemplate>;

// The decision tables of report selection, in their order: the simplified procedure first,
// then by `System`.
Selection SelectTemplate(const SelectionInputs& inputs);

}  // namespace gustline::report
