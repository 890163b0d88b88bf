#include "structures/FreeRoof.h"

#include <algorithm>

#include "ui/rules/FieldNumber.h"

namespace gustline {

Message Note5RatioRefusal() {
  return Message{"Error",
                 "Structure height \\ Structure width out of range for Note 5 to apply.  Valid "
                 "range is 0.05 to 0.25",
                 PromptIcon::Exclamation};
}

int RoofAngleSliderPosition(std::string_view boxText) {
  return static_cast<int>(std::clamp(rules::FieldValue(boxText), 0.0, 45.0));
}

}  // namespace gustline
