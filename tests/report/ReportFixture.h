#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "TempFolder.h"
#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "report/ReportGenerator.h"
#include "report/TemplateCatalog.h"

namespace gustline::report::testing {

// The program's folder of a test: the built WindData as the project, templates installed by
// the test, and an application around a report generator.
class ReportFixture {
 public:
  ReportFixture() : folder_(gustline::testing::UniqueTempFolder("gustline-report-")) {
    std::filesystem::create_directories(folder_);
    state.applicationPath = folder_.string();
    Project().ReadWorkbook(std::string(GUSTLINE_BIN_DIR) + "/workbooks/WindData.gwb");
    RecreateLateNames(Project());
  }
  ~ReportFixture() {
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  wb::Workbook& Project() { return state.ProjectWorkbook(); }
  wb::Workbook& Report() { return state.ReportWorkbook(); }
  void Set(const char* name, double value) { wb::WriteNamedNumber(Project(), name, value); }
  std::string Folder() const { return folder_.string(); }

  // Writes a template where the catalog looks for it.
  void Install(wb::Workbook& book, TemplateContainer container) {
    const std::string path = TemplatePath(Folder(), {book.BookName(), container});
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    book.WriteWorkbook(path, wb::FileType::Native);
  }

  // A cell of a report sheet by its sheet number.
  wb::Value Cell(int sheet, int row, int col) {
    Report().SetActiveSheet(sheet);
    return Report().CellValue(row, col);
  }
  std::string Formula(int sheet, int row, int col) {
    Report().SetActiveSheet(sheet);
    return Report().CellFormula(row, col);
  }

  ProcessState state;
  RecordingView view;
  ScriptedPrompt prompt;
  MemorySettings settings;
  ReportGenerator generator;
  Application app{state, view, prompt, settings, generator};

 private:
  std::filesystem::path folder_;
};

}  // namespace gustline::report::testing
