#include "structures/FreeRoof.h"

#include <algorithm>

#include "ui/rules/FieldNumber.h"

namespace gustline {

int RoofAngleSliderPosition(std::string_view boxText) {
  return static_cast<int>(std::clamp(rules::FieldValue(boxText), 0.0, 45.0));
}

}  // namespace gustline
