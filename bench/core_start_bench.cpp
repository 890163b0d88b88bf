// The start of the core without a window: reading the carried WindData, rebuilding
// NORMAL.GLT, reading the active template and the settings, re-creating the late names.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/Settings.h"
#include "core/StartUp.h"

namespace {

namespace fs = std::filesystem;

// A program folder in the temporary area holding the WindData built beside this program.
class BenchFolder {
 public:
  BenchFolder() : folder_(fs::temp_directory_path() / "gustline-core-start-bench") {
    std::error_code error;
    const fs::path carried =
        fs::read_symlink("/proc/self/exe", error).parent_path() / "workbooks" / "WindData.gwb";
    fs::create_directories(folder_ / "workbooks", error);
    ready_ = fs::copy_file(carried, folder_ / "workbooks" / "WindData.gwb",
                           fs::copy_options::overwrite_existing, error) &&
             !error;
  }
  ~BenchFolder() {
    std::error_code error;
    fs::remove_all(folder_, error);
  }
  bool Ready() const { return ready_; }
  std::string Path() const { return folder_.string(); }

 private:
  fs::path folder_;
  bool ready_ = false;
};

void BM_CoreStart(benchmark::State& benchState) {
  BenchFolder folder;
  if (!folder.Ready()) {
    benchState.SkipWithError("workbooks/WindData.gwb is not built beside the benchmark");
    return;
  }
  gustline::MemorySettings settings;
  settings.SaveSetting("Zoom", "5");
  settings.SaveSetting("File0", "/nowhere/Tower.gln");
  for (auto _ : benchState) {
    gustline::ProcessState state;
    gustline::NullView view;
    gustline::ScriptedPrompt prompt;
    gustline::NullReportHook report;
    gustline::Application app{state, view, prompt, settings, report};
    gustline::StartApplication(app, folder.Path(), "");
    benchmark::DoNotOptimize(state.activeTemplatePath);
  }
}
BENCHMARK(BM_CoreStart)->Unit(benchmark::kMillisecond);

}  // namespace
