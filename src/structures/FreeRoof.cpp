#include "structures/FreeRoof.h"

namespace gustline {

Message Note5RatioRefusal() {
  return Message{"Error",
                 "Structure height \\ Structure width out of range for Note 5 to apply.  Valid "
                 "range is 0.05 to 0.25",
                 PromptIcon::Exclamation};
}

}  // namespace gustline
