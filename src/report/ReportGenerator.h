#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/ReportHook.h"
#include "geometry/Nudge.h"
#include "report/TemplateCatalog.h"

namespace gustline::report {

// The report generator of the program: chooses the template for the project, builds the
// report in `ServerSS` and runs the refresh cycle. Templates are read from their files on
// first use and kept, as the hidden forms keep them.
class ReportGenerator : public ReportHook {
 public:
  ReportGenerator();
  ~ReportGenerator() override;

  // BuildReport, with a facility error (a template not built, a temporary file that cannot be
  // written, a missing input name) shown by the common error report "Gustline error : ".
  void CreateReport(Application& app) override;
  void CopyPageSetup(wb::Workbook& from, wb::Workbook& to) override;
  std::vector<std::string> BookNamesOn(TemplateContainer container) override;

  // The whole of report creation: choice, build, iteration, print setup, zoom, refresh,
  // status. Facility errors propagate, with the pointer and status panel restored.
  void BuildReport(Application& app);

  // The template of the report on show; empty while no report has been built.
  const std::string& TemplateName() const { return templateName_; }
  // Whether the last build made a report; the former one stays on show when it did not.
  bool LastBuildMadeReport() const { return madeReport_; }

 private:
  const wb::Workbook& Template(const std::string& applicationPath, const TemplateId& id);

  std::map<std::pair<TemplateContainer, std::string>, std::unique_ptr<wb::Workbook>> templates_;
  geometry::CutRandom random_;
  std::string templateName_;
  bool madeReport_ = false;
};

}  // namespace gustline::report
