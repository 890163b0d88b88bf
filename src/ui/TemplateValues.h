#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline {

// The template named in the Template dialog: a name in the program's folder or a path.
struct TemplateChoice {
  std::string name;
};

inline constexpr rules::FormField<TemplateChoice> kTemplateFields[] = {
    {.control = "Text1", .member = &TemplateChoice::name},
};

}  // namespace gustline
