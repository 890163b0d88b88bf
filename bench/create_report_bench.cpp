// CreateReport per built template, named by container and template: the default outline
// (60 ft, the standard ladder) and, for the templates with height rows, the largest table
// (`Interval` 1, `Height` 2000: 2000 rows), and the refresh step alone on the same finished
// report, to show its share of the build.
#include <benchmark/benchmark.h>

#include <array>
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
  bool heightRows = true;
};

// Free roofs over open buildings: Figures 6-18A to D and 6-19A to C for each gust treatment,
// GustType 0 to 2 on containers A, F and B.
void AddOpenBuildings(std::vector<Case>& cases) {
  using Names = std::vector<const char*>;
  const Names given = {"Figure618A", "Figure618B", "Figure618C", "Figure618D"};
  const Names analysed = {"Fig618A", "Fig618B", "Fig618C", "Fig618D"};
  const Names cladding = {"Fig619A", "Fig619B", "Fig619C"};
  const std::pair<TemplateContainer, const Names*> treatments[] = {
      {TemplateContainer::A, &given},
      {TemplateContainer::F, &analysed},
      {TemplateContainer::B, &analysed}};
  for (int gust = 0; gust < 3; ++gust) {
    const auto [container, mwfrs] = treatments[gust];
    for (int table : {0, 2}) {
      const Names& names = table == 0 ? *mwfrs : cladding;
      for (std::size_t roof = 0; roof < names.size(); ++roof)
        cases.push_back({names[roof],
                         container,
                         {{"System", 2},
                          {"Table", table},
                          {"GustType", gust},
                          {"Table66RoofType", static_cast<double>(roof + 1)}},
                         false});
    }
  }
}

// Other structures for each gust treatment: solid signs (Table 3, one page of pressures),
// then chimneys, open signs, trussed towers and the special case by height (Tables 4 to 7).
void AddOtherStructures(std::vector<Case>& cases) {
  using Names = std::vector<const char*>;
  const std::pair<TemplateContainer, Names> treatments[] = {
      {TemplateContainer::A, {"Fig620", "Figure619A", "Figure621A", "Figure622A", "TableSpecial"}},
      {TemplateContainer::F, {"Fig620", "Figure619C", "Figure621C", "Figure622C", "TableSpecialD"}},
      {TemplateContainer::B,
       {"Fig620", "Figure619B", "Figure621B", "Figure622B", "TableSpecialB"}}};
  for (int gust = 0; gust < 3; ++gust) {
    const auto& [container, names] = treatments[gust];
    for (int table = 3; table <= 7; ++table) {
      // The special case of GustType 0 and 2 stands on container D.
      const TemplateContainer on = table == 7 && gust != 1 ? TemplateContainer::D : container;
      cases.push_back({names[table - 3],
                       on,
                       {{"System", 2}, {"Table", table}, {"GustType", gust}},
                       table != 3});
    }
  }
}

// Domed and arched roofs: the main wind-force reports for each gust treatment, whose
// windward wall goes by height, and the two components reports.
void AddDomesAndArches(std::vector<Case>& cases) {
  const std::pair<int, std::array<std::pair<const char*, TemplateContainer>, 3>> families[] = {
      {9,
       {{{"Figure67A", TemplateContainer::G},
         {"Figure67C", TemplateContainer::G},
         {"Figure67B", TemplateContainer::G}}}},
      {8,
       {{{"Figure68A", TemplateContainer::D},
         {"Figure68C", TemplateContainer::F},
         {"Figure68B", TemplateContainer::B}}}}};
  for (const auto& [figure, members] : families) {
    for (int gust = 0; gust < 3; ++gust) {
      const auto [name, container] = members[gust];
      const double structure = gust == 2 ? 2 : 1;
      cases.push_back({name,
                       container,
                       {{"System", 0},
                        {"Structure", structure},
                        {"Figure", static_cast<double>(figure)},
                        {"GustType", gust == 2 ? 0.0 : gust}}});
    }
  }
  cases.push_back({"figure616A",
                   TemplateContainer::G,
                   {{"System", 1}, {"Structure", 2}, {"Figure", 9}},
                   false});
  cases.push_back(
      {"Figure68B", TemplateContainer::F, {{"System", 1}, {"Structure", 2}, {"Figure", 8}}, false});
}

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = [] {
    std::vector<Case> all = {
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
    AddOpenBuildings(all);
    AddOtherStructures(all);
    AddDomesAndArches(all);
    return all;
  }();
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
      if (largest && !c.heightRows) continue;
      const std::string suffix = std::string(report::ContainerLetter(c.container)) + "/" + c.name +
                                 (largest ? "/2000rows" : "/default");
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
