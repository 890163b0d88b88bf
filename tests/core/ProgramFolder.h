#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/Settings.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::testing {

// A report generator that counts its calls and names the books of each container.
class CountingReportHook : public ReportHook {
 public:
  void CreateReport(Application&) override { ++reports; }
  void CopyPageSetup(wb::Workbook&, wb::Workbook&) override { ++pageSetupCopies; }
  std::vector<std::string> BookNamesOn(TemplateContainer container) override {
    switch (container) {
      case TemplateContainer::A:
        return {"Figure618A", "Fig619A"};
      case TemplateContainer::B:
        return {"Fig619B"};
      case TemplateContainer::D:
        return {"Figure610", " TableSpecial "};
      case TemplateContainer::F:
        return {"SimpMFWRS"};
      case TemplateContainer::G:
        return {"Figure67A"};
    }
    return {};
  }

  int reports = 0;
  int pageSetupCopies = 0;
};

// A project with the cells that the start and the status bar read.
inline void FillProject(wb::Workbook& book, double windSpeed) {
  book.ClearAll();
  book.SetCellNumber(15, 2, 0);
  book.SetCellNumber(16, 2, 2);
  book.SetCellNumber(17, 2, windSpeed);
  book.SetCellNumber(24, 2, 60);
  book.SetDefinedName("Category", "Sheet1!$B$15");
  book.SetDefinedName("Exposure", "Sheet1!$B$16");
  book.SetDefinedName("WindSpeed", "Sheet1!$B$17");
  book.SetDefinedName("Height", "Sheet1!$B$24");
  for (int sheet = 2; sheet <= 7; ++sheet) book.AddSheet("Sheet" + std::to_string(sheet));
  book.SetActiveSheet(1);
}

// Writes a project file with the given wind speed.
inline void WriteProject(const std::filesystem::path& path, double windSpeed) {
  wb::Workbook book("WindData");
  FillProject(book, windSpeed);
  book.WriteWorkbook(path.string(), wb::FileType::Native);
}

// A temporary program folder that carries a project with V = 90 mph, the working folder
// moved into it, and the parts of an application around a fresh process state.
class ProgramFolder {
 public:
  ProgramFolder()
      : folder_(UniqueTempFolder("gustline-core-")), previous_(std::filesystem::current_path()) {
    std::filesystem::create_directories(folder_ / "workbooks");
    WriteProject(folder_ / "workbooks" / "WindData.gwb", 90);
    std::filesystem::current_path(folder_);
  }
  ~ProgramFolder() {
    std::filesystem::current_path(previous_);
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  std::string Path() const { return folder_.string(); }
  std::string File(const std::string& name) const { return (folder_ / name).string(); }

  ProcessState state;
  RecordingView view;
  ScriptedPrompt prompt;
  MemorySettings settings;
  CountingReportHook report;
  Application app{state, view, prompt, settings, report};

 private:
  std::filesystem::path folder_;
  std::filesystem::path previous_;
};

}  // namespace gustline::testing
