#include "report/qt/RepeatCommand.h"

#include <array>

namespace gustline {
namespace {

constexpr std::array<std::string_view, 27> kRepeatOrder = {
    "mnuFileNew",
    "mnuFileOpen",
    "mnuFileSave",
    "mnuFileTemplate",
    "mnuFileSaveAs",
    "mnuFilePrintSetup",
    "mnuFilePageSetup",
    "mnuFilePrintReport",
    "mnuEditCopy",
    "mnuViewToolBar",
    "mnuViewStatus",
    "mnuPropertiesEquation",
    "mnuPropertiesWind",
    "mnuPropertiesBuilding",
    "mnuPropertiesGust",
    "mnuPropertiesTopo",
    "mnuPropertiesIntervals",
    "mnuPropertiesGeometry",
    "mnuPropertiesHeadings",
    "mnuSimplified",
    "mnuMinPressure",
    "mnuPropertiesUnits",
    "mnuInternal",
    "mnuFormatWidth",
    "mnuFormatNumber",
    "mnuHelpContents",
    "mnuHelpAbout",
};

}  // namespace

std::span<const std::string_view> RepeatOrder() {
  return kRepeatOrder;
}

std::string_view RepeatCommand::Find(
    const std::function<std::string(std::string_view)>& captionOf) const {
  if (lastCommand_.empty()) return {};
  for (std::string_view command : kRepeatOrder)
    if (captionOf(command) == lastCommand_) return command;
  return {};
}

}  // namespace gustline
