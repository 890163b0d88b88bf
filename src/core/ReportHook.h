#pragma once

#include <string>
#include <vector>

namespace gustline {

namespace wb {
class Workbook;
}
struct Application;

// The hidden forms that store the report templates.
enum class TemplateContainer { A, B, D, F, G };

// What the core asks of the report generator: build the report of the project, carry the
// page setup between books, and name the template books a container holds.
class ReportHook {
 public:
  virtual ~ReportHook() = default;
  virtual void CreateReport(Application& app) = 0;
  virtual void CopyPageSetup(wb::Workbook& from, wb::Workbook& to) = 0;
  virtual std::vector<std::string> BookNamesOn(TemplateContainer container) = 0;
};

// No report at all: the command line and the start of the core without a window.
class NullReportHook : public ReportHook {
 public:
  void CreateReport(Application&) override {}
  void CopyPageSetup(wb::Workbook&, wb::Workbook&) override {}
  std::vector<std::string> BookNamesOn(TemplateContainer) override { return {}; }
};

}  // namespace gustline
