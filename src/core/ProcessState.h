#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/RecentFiles.h"
#include "core/workbook/model/SheetSetup.h"

namespace gustline {

namespace wb {
class Workbook;
}

inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::string_view kLfCr = "\n\r";
inline constexpr std::string_view kCr = "\r";
inline constexpr std::string_view kLf = "\n";
inline constexpr std::string_view kTab = "\t";

// The page setup that a new project starts with: footer "&A" (the sheet's name), margins
// 0.75 top and 0.5 bottom and left, and fit to one page.
wb::PrintSetup DefaultPageSetup();

// What the running program holds besides its workbooks' cells: paths, the project's name
// and state flags, the page setup, the recent list, and the three long-lived workbooks.
// One per process in the program; tests make their own.
class ProcessState {
 public:
  ProcessState();
  ~ProcessState();
  ProcessState(const ProcessState&) = delete;
  ProcessState& operator=(const ProcessState&) = delete;

  // `WindData`, the project.
  wb::Workbook& ProjectWorkbook() { return *projectWorkbook_; }
  // `ServerSS`, the report on show.
  wb::Workbook& ReportWorkbook() { return *reportWorkbook_; }
  // `BufferSS`, scratch for export.
  wb::Workbook& BufferWorkbook() { return *bufferWorkbook_; }

  std::string applicationPath;     // the program's folder, no trailing separator
  std::string manualPath;          // "Gustline.pdf" in the program's folder
  std::string activeTemplatePath;  // read by File New and at start; the setting Template
  std::string currentFileName;     // path or bare name of the project
  std::int16_t untitledCounter = 1;
  bool modifiedFlag = false;
  bool dialogApplyFlag = false;
  // "Ignore area calculation when calculating wind forces." of the Geometry dialog.
  bool ignoreAreaCalculation = false;
  std::int16_t roofTypeCache = 0;  // Table66RoofType, kept by the report selection
  std::int16_t note5Cache = 0;     // Note5Applies, likewise
  wb::PrintSetup pageSetup = DefaultPageSetup();
  RecentFiles recentFiles;

 private:
  std::unique_ptr<wb::Workbook> projectWorkbook_;
  std::unique_ptr<wb::Workbook> reportWorkbook_;
  std::unique_ptr<wb::Workbook> bufferWorkbook_;
};

// "PROJECT1.GLN", then "PROJECT2.GLN", ...: takes the counter and advances it.
std::string NextUntitledName(ProcessState& state);

// The main window's caption for a project name: " Kestrel Ridge Gustline - [NAME]".
std::string MainCaption(std::string_view name);

}  // namespace gustline
