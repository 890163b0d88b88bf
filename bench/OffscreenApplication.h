#pragma once

#include <QByteArray>
#include <QtGlobal>

// The one application object of a benchmark that draws, on the offscreen platform unless
// another is chosen; made on first use.
template <typename App>
App& OffscreenApplication() {
  static int argc = 1;
  static char name[] = "gustline_bench";
  static char* argv[] = {name, nullptr};
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static App application(argc, argv);
  return application;
}
