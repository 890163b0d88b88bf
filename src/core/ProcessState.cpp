#include "core/ProcessState.h"

#include "core/TextTools.h"
#include "core/workbook/model/Workbook.h"

namespace gustline {

wb::PrintSetup DefaultPageSetup() {
  wb::PrintSetup setup;
  setup.header = "";
  setup.footer = "&A";
  setup.topMargin = 0.75;
  setup.bottomMargin = 0.5;
  setup.leftMargin = 0.5;
  setup.rightMargin = 0;
  setup.hCenter = false;
  setup.vCenter = false;
  setup.gridLines = false;
  setup.noColor = false;
  setup.scale = 100;
  setup.fitToPages = true;
  setup.pagesWide = 1;
  setup.pagesTall = 1;
  return setup;
}

ProcessState::ProcessState()
    : projectWorkbook_(std::make_unique<wb::Workbook>("WindData")),
      reportWorkbook_(std::make_unique<wb::Workbook>("ServerSS")),
      bufferWorkbook_(std::make_unique<wb::Workbook>("BufferSS")) {}

ProcessState::~ProcessState() = default;

std::string NextUntitledName(ProcessState& state) {
  std::string name = UpperCase("Project" + std::to_string(state.untitledCounter) + ".GLN");
  ++state.untitledCounter;
  return name;
}

std::string MainCaption(std::string_view name) {
  return " Kestrel Ridge Gustline - [" + UpperCase(name) + "]";
}

}  // namespace gustline
