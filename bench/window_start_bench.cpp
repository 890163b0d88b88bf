// The window's start, offscreen: from the start of the program's core to the main window on
// screen with the first report of the default project, splash screen included. Process start
// and the making of the QApplication are not counted.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <filesystem>
#include <memory>
#include <string>

#include "OffscreenApplication.h"
#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "report/ReportGenerator.h"
#include "report/qt/MainFrm.h"
#include "report/qt/QtApplicationView.h"

namespace {

void BM_WindowStart(benchmark::State& bench) {
  OffscreenApplication<QApplication>();
  const std::string folder = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
  for (auto _ : bench) {
    gustline::ProcessState state;
    gustline::MainFrm window;
    gustline::QtApplicationView view(window);
    gustline::ScriptedPrompt prompt;
    gustline::MemorySettings settings;
    gustline::report::ReportGenerator report;
    gustline::Application app{state, view, prompt, settings, report};
    window.SetApplication(&app);
    gustline::StartApplication(app, folder, "");
    QApplication::processEvents();
    if (!window.isVisible() || report.TemplateName().empty()) {
      bench.SkipWithError("the window did not come up with its report");
      break;
    }
  }
}
BENCHMARK(BM_WindowStart)->Unit(benchmark::kMillisecond);

}  // namespace
