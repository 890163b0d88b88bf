#include "report/ReportBuilders.h"

#include <string>
#include <utility>

#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/NumberFormat.h"
#include "geometry/HeightList.h"
#include "geometry/IntervalAreas.h"
#include "report/HeightTables.h"
#include "report/ReportRefresh.h"

namespace gustline::report {
namespace {

using enum ReportBuilder;

constexpr int kClearAll = 1;

// The height rows of the project: their count, the text of the height columns, the order.
struct Heights {
  int rows = 0;
  std::string text;
  int order = 0;
};

Heights ReadHeights(wb::Workbook& project) {
  const double height = wb::ReadNamedNumber(project, "Height");
  const int interval = wb::ReadNamedInt(project, "Interval");
  const std::string userIntervals = wb::ReadNamedText(project, "UserIntervals");
  const int order = wb::ReadNamedInt(project, "Order");
  return Heights{geometry::CountHeightRows(height, interval, userIntervals),
                 geometry::BuildHeightText(height, interval, order, userIntervals), order};
}

std::string OutlineAreas(const BuildContext& context) {
  return OneValuePerLine(geometry::GetIntervalAreas(context.project, context.areas));
}

// Steps every builder begins with. The template file brings its own calculation setting,
// so automatic calculation is turned off again once it is read.
void BringTemplateIn(const wb::Workbook& templateBook, const BuildContext& context) {
  wb::Workbook& report = context.report;
  report.ClearAll();
  report.SetMousePointer(kHourglassPointer);
  report.SetAutoRecalc(false);
  LoadTemplateToReport(templateBook, report);
  report.SetAutoRecalc(false);
}

// The sheet and cells of a name that the builder needs; the template brought it in.
std::pair<int, wb::Area> NamedPlace(wb::Workbook& report, const wb::Workbook& templateBook,
                                    const char* name) {
  const auto place = report.ResolveReference(name);
  if (!place)
    throw wb::FacilityError(wb::errc::kUnknownName, "The report template " +
                                                        templateBook.BookName() + " has no name " +
                                                        name + ", which its builder needs");
  return *place;
}

// Makes the name's sheet active and its cells the selection.
void SelectNamed(wb::Workbook& report, const wb::Workbook& templateBook, const char* name) {
  const auto [sheet, area] = NamedPlace(report, templateBook, name);
  report.SetActiveSheet(sheet);
  report.SetSelectionRC(area.firstRow, area.firstCol, area.lastRow, area.lastCol);
}

void ClearNamedRange(wb::Workbook& report, const wb::Workbook& templateBook, const char* name) {
  SelectNamed(report, templateBook, name);
  report.ClearRange(kClearAll);
}

void HideNamedRows(wb::Workbook& report, const wb::Workbook& templateBook, const char* name) {
  const auto [sheet, area] = NamedPlace(report, templateBook, name);
  report.SetActiveSheet(sheet);
  report.HideRows(area.firstRow, area.lastRow, true);
}

// Deletes the sheet that holds the name; returns the number it had.
int RemoveNamedPage(wb::Workbook& report, const wb::Workbook& templateBook, const char* name) {
  const int sheet = NamedPlace(report, templateBook, name).first;
  report.DeleteSheets(sheet, 1);
  return sheet;
}

void WriteNamedText(wb::Workbook& report, const wb::Workbook& templateBook, const char* name,
                    const char* text) {
  const auto [sheet, area] = NamedPlace(report, templateBook, name);
  report.SetActiveSheet(sheet);
  report.SetCellText(area.firstRow, area.firstCol, text);
}

// The system lines of page 1 for components and cladding.
void WriteSystemHeading(const wb::Workbook& templateBook, const BuildContext& context) {
  if (wb::ReadNamedInt(context.project, "System") != 1) return;
  WriteNamedText(context.report, templateBook, "SystemLine1", "Components");
  WriteNamedText(context.report, templateBook, "SystemLine2", "and Cladding");
}

bool HasParapet(const BuildContext& context, const char* name = "HasParapet") {
  return wb::ReadNamedInt(context.project, name) != 0;
}

void ShowFirstSheet(wb::Workbook& report) {
  report.SetActiveSheet(1);
  report.SetActiveCell(1, 1);
}

void PasteList(const wb::Workbook& templateBook, const BuildContext& context, const char* target,
               const char* listName) {
  SelectNamed(context.report, templateBook, target);
  context.report.SetClipText(CommaListLines(wb::ReadNamedText(context.project, listName)));
}

void BuildTablesWithAreas(const wb::Workbook& templateBook, const BuildContext& context) {
  const Heights heights = ReadHeights(context.project);
  const std::string areas = OutlineAreas(context);
  BringTemplateIn(templateBook, context);
  wb::Workbook& report = context.report;
  FillHeightTable(report, "Start", "TopRow", heights.rows, heights.text);
  FillForcesTable(report, {"Start2", "TopRow2", "StartArea"}, heights.rows, heights.text, areas,
                  heights.order);
  FillForcesTable(report, {"Start3", "TopRow3", "StartArea2"}, heights.rows, heights.text, areas,
                  heights.order);
  if (wb::ReadNamedInt(context.project, "Figure") == 1 && !HasParapet(context))
    ClearNamedRange(report, templateBook, "IncludeParapet");
}

// The open-structure builders of Figures 6-21 to 6-23 and the special case: a pressures
// table, an input list beside it, and one forces table.
struct TwoTables {
  const char* listTarget = nullptr;  // none for Figure 6-22
  const char* listName = nullptr;
};

ForcesTable BuildTwoTables(const wb::Workbook& templateBook, const BuildContext& context,
                           const Heights& heights, const std::string& areas, TwoTables list) {
  BringTemplateIn(templateBook, context);
  wb::Workbook& report = context.report;
  FillHeightTable(report, "Start", "TopRow", heights.rows, heights.text);
  if (list.listTarget != nullptr) PasteList(templateBook, context, list.listTarget, list.listName);
  return FillForcesTable(report, {"Start2", "TopRow2", "StartArea"}, heights.rows, heights.text,
                         areas, heights.order);
}

void BuildFigure621(const wb::Workbook& templateBook, const BuildContext& context) {
  const Heights heights = ReadHeights(context.project);
  const ForcesTable forces = BuildTwoTables(templateBook, context, heights, OutlineAreas(context),
                                            {"StartDiam", "Table67Dia"});
  const double factor = wb::ReadNamedNumber(context.project, "Sect_6_5_15_1_MultFactor");
  if (factor > 1)
    context.report.SetCellEntry(forces.summaryRow - 2, forces.firstColumn,
                                "Note: Forces multiplied by a factor of " +
                                    wb::FormatNumber(factor, "0.00") + " per 6.5.15.1");
}

bool BuildSpecialCase(const wb::Workbook& templateBook, const BuildContext& context) {
  const Heights heights = ReadHeights(context.project);
  if (heights.rows < 1) {
    context.prompt.Show(Message{"", "Halt pRowCount Error."});
    return false;
  }
  const std::string areas =
      CommaListLines(wb::ReadNamedText(context.project, "TableSpecialProjAreas"));
  BuildTwoTables(templateBook, context, heights, areas, {"CfFactors", "TableSpecialCoefficients"});
  WriteSystemHeading(templateBook, context);
  return true;
}

void BuildFigure617(const wb::Workbook& templateBook, const BuildContext& context) {
  const Heights heights = ReadHeights(context.project);
  BringTemplateIn(templateBook, context);
  wb::Workbook& report = context.report;
  FillHeightTable(report, "Start", "TopRow", heights.rows, heights.text);
  FillHeightTable(report, "Start1", "TopRow1", heights.rows, heights.text);
  if (wb::ReadNamedNumber(context.project, "Figure68Angle") <= 10)
    ClearNamedRange(report, templateBook, "AddTable");
  if (!HasParapet(context, "HasParapets")) {
    // The pages after the parapet page take the numbers of their places.
    for (int sheet = RemoveNamedPage(report, templateBook, "ParapetPage");
         sheet <= report.SheetCount(); ++sheet)
      report.SetSheetName(sheet, "Page " + std::to_string(sheet));
  }
}

void BuildSimplifiedMwfrs(const wb::Workbook& templateBook, const BuildContext& context) {
  BringTemplateIn(templateBook, context);
  wb::Workbook& report = context.report;
  if (wb::ReadNamedInt(context.project, "System") == 0 &&
      wb::ReadNamedNumber(context.project, "SimplifiedAngle") <= 25)
    HideNamedRows(report, templateBook, "SteepRoofRows");
  ShowFirstSheet(report);
}

void BuildSolidSigns(const wb::Workbook& templateBook, const BuildContext& context) {
  BringTemplateIn(templateBook, context);
  wb::Workbook& report = context.report;
  if (wb::ReadNamedNumber(context.project, "AspectRatio") < 2)
    HideNamedRows(report, templateBook, "CaseCRows");
  ShowFirstSheet(report);
}

}  // namespace

bool RunBuilder(ReportBuilder builder, const wb::Workbook& templateBook,
                const BuildContext& context) {
  switch (builder) {
    case TablesWithAreas:
      BuildTablesWithAreas(templateBook, context);
      return true;
    case Plain:
      BringTemplateIn(templateBook, context);
      return true;
    case PlainWithHeading:
      BringTemplateIn(templateBook, context);
      WriteSystemHeading(templateBook, context);
      return true;
    case LowRise:
      BringTemplateIn(templateBook, context);
      WriteSystemHeading(templateBook, context);
      if (!HasParapet(context)) ClearNamedRange(context.report, templateBook, "IncludeParapet");
      return true;
    case Cladding:
      BringTemplateIn(templateBook, context);
      if (!HasParapet(context)) RemoveNamedPage(context.report, templateBook, "ParapetPage");
      return true;
    case SimplifiedMwfrs:
      BuildSimplifiedMwfrs(templateBook, context);
      return true;
    case SolidSigns:
      BuildSolidSigns(templateBook, context);
      return true;
    case Figure617:
      BuildFigure617(templateBook, context);
      return true;
    case Figure621:
      BuildFigure621(templateBook, context);
      return true;
    case Figure622: {
      const Heights heights = ReadHeights(context.project);
      BuildTwoTables(templateBook, context, heights, OutlineAreas(context), {});
      return true;
    }
    case Figure623: {
      const Heights heights = ReadHeights(context.project);
      BuildTwoTables(templateBook, context, heights, OutlineAreas(context),
                     {"RatioE", "Table610Ratios"});
      return true;
    }
    case SpecialCase:
      return BuildSpecialCase(templateBook, context);
  }
  return false;
}

}  // namespace gustline::report
