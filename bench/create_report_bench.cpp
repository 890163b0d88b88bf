// CreateReport per built template: the default outline (60 ft, the standard ladder) and the
// largest table (`Interval` 1, `Height` 2000: 2000 rows), and the refresh step alone on the
// same finished report, to show its share of the build.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "report/ReportGenerator.h"
#include "report/ReportRefresh.h"
#include "report/TemplateCatalog.h"

namespace {

using namespace gustline;

std::string ProgramFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}

struct Case {
  const char* name;
  TemplateContainer container;
  std::vector<std::pair<const char*, double>> sets;
};

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"Figure610", TemplateContainer::D, {{"System", 0}, {"Structure", 0}}},
      {"Figure66A",
       TemplateContainer::D,
       {{"System", 0}, {"Structure", 1}, {"Figure", 1}, {"GustType", 0}}},
      {"Figure66B", TemplateContainer::D, {{"System", 0}, {"Structure", 2}, {"Figure", 1}}},
      {"Figure66C",
       TemplateContainer::F,
       {{"System", 0}, {"Structure", 1}, {"Figure", 1}, {"GustType", 1}}},
      // The simplified procedure, at a roof steeper than 25 degrees so that Load Case 2 shows.
      {"SimpMFWRS", TemplateContainer::F, {{"B124", 1}, {"System", 0}, {"SimplifiedAngle", 30}}},
      {"SimpCompAndClad", TemplateContainer::F, {{"B124", 1}, {"System", 1}}},
      // Components and cladding, with the parapet page; Figure 6-17 above 60 ft.
      {"Figure611B",
       TemplateContainer::D,
       {{"System", 1}, {"Structure", 0}, {"Figure", 3}, {"HasParapet", 1}}},
      {"Figure613",
       TemplateContainer::D,
       {{"System", 1}, {"Structure", 0}, {"Figure", 4}, {"HasParapet", 1}}},
      {"Figure614A",
       TemplateContainer::D,
       {{"System", 1}, {"Structure", 0}, {"Figure", 5}, {"HasParapet", 1}}},
      {"Figure614B",
       TemplateContainer::D,
       {{"System", 1}, {"Structure", 0}, {"Figure", 6}, {"HasParapet", 1}}},
      {"Figure617",
       TemplateContainer::D,
       {{"System", 1}, {"Structure", 1}, {"Figure", 7}, {"Height", 100}, {"HasParapet", 1}}},
  };
  return cases;
}

// The program around a report generator, with the carried project set for one template.
struct Program {
  Program(const Case& c, bool largest) {
    state.applicationPath = ProgramFolder();
    state.ProjectWorkbook().ReadWorkbook(CarriedProjectPath(state.applicationPath));
    RecreateLateNames(state.ProjectWorkbook());
    for (const auto& [name, value] : c.sets)
      wb::WriteNamedNumber(state.ProjectWorkbook(), name, value);
    if (largest) {
      wb::WriteNamedNumber(state.ProjectWorkbook(), "Interval", 1);
      wb::WriteNamedNumber(state.ProjectWorkbook(), "Height", 2000);
    }
  }
  ProcessState state;
  NullView view;
  StderrPrompt prompt;
  MemorySettings settings;
  report::ReportGenerator generator;
  Application app{state, view, prompt, settings, generator};
};

bool Built(const Case& c) {
  return std::filesystem::exists(report::TemplatePath(ProgramFolder(), {c.name, c.container}));
}

void BM_CreateReport(benchmark::State& bench, const Case& c, bool largest) {
  if (!Built(c)) {
    bench.SkipWithError("template not built");
    return;
  }
  Program program(c, largest);
  for (auto _ : bench) {
    program.generator.BuildReport(program.app);
    // Reading one result makes the recalculation that automatic calculation owes happen here.
    benchmark::DoNotOptimize(program.state.ReportWorkbook().CellValue(1, 1));
  }
}

void BM_RefreshReportLinks(benchmark::State& bench, const Case& c, bool largest) {
  if (!Built(c)) {
    bench.SkipWithError("template not built");
    return;
  }
  Program program(c, largest);
  program.generator.BuildReport(program.app);
  wb::Workbook& report = program.state.ReportWorkbook();
  report.SetAutoRecalc(false);
  for (auto _ : bench) report::RefreshReportLinks(report, program.view);
}

const bool registered = [] {
  for (const Case& c : Cases()) {
    for (const bool largest : {false, true}) {
      const std::string suffix = std::string(c.name) + (largest ? "/2000rows" : "/default");
      benchmark::RegisterBenchmark(("CreateReport/" + suffix).c_str(), BM_CreateReport, c, largest)
          ->Unit(benchmark::kMillisecond);
      benchmark::RegisterBenchmark(("RefreshReportLinks/" + suffix).c_str(), BM_RefreshReportLinks,
                                   c, largest)
          ->Unit(benchmark::kMillisecond);
    }
  }
  return true;
}();

}  // namespace
