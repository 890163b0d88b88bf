#pragma once

#include "TestApplication.h"

namespace gustline::testing {

inline void EnsureApplication() {
  EnsureTestApplication("gui_tests");
}

}  // namespace gustline::testing
