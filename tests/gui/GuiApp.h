#pragma once

#include <QApplication>

namespace gustline::testing {

// The one QApplication of the test program, made on first use.
inline void EnsureApplication() {
  static int argc = 1;
  static char name[] = "gui_tests";
  static char* argv[] = {name, nullptr};
  static QApplication application(argc, argv);
}

}  // namespace gustline::testing
