// The Figure 6-6 report family, built and linked to the built WindData: the check values of
// the default project and the differences between Figure66A, Figure66B and Figure66C.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "core/workbook/NamedCells.h"
#include "core/workbook/Workbook.h"

namespace gustline::wb {
namespace {

constexpr double kTight = 1e-12;

// A template opened beside the project, its links bound as the report generator binds them:
// every formula entered again, iteration on for the shear and moment chains.
class Figure66Report {
 public:
  Figure66Report(const std::string& container, const std::string& name)
      : report_(std::make_unique<Workbook>(name)) {
    windData_->ReadWorkbook(std::string(GUSTLINE_WORKBOOK_DIR) + "/WindData.gwb");
    report_->ReadWorkbook(std::string(GUSTLINE_WORKBOOK_DIR) + "/templates/" + container + "/" +
                          name + ".gwb");
    report_->SetIteration(true, 100, 0.001);
  }

  Workbook& Project() { return *windData_; }
  Workbook& Report() { return *report_; }

  void Rebind() {
    for (int sheet = 1; sheet <= report_->SheetCount(); ++sheet) {
      report_->SetActiveSheet(sheet);
      std::vector<std::pair<int, int>> formulas;
      report_->GetSheet(sheet).ForEachCell([&](int row, int col, const Cell& cell) {
        if (cell.IsFormula()) formulas.emplace_back(row, col);
      });
      for (const auto& [row, col] : formulas)
        report_->SetCellFormula(row, col, report_->CellFormula(row, col));
    }
    report_->Recalc();
  }

  // The sheet and first cell of a defined name of the report.
  std::pair<int, CellAddress> Where(const std::string& name) {
    const auto found = report_->ResolveReference(name);
    return {found->first, {found->second.firstRow, found->second.firstCol}};
  }

  double At(int sheet, int row, int col) {
    report_->Recalc();
    report_->SetActiveSheet(sheet);
    return report_->CellNumber(row, col);
  }

  // The first row of a sheet whose column B holds the text.
  int RowOf(int sheet, const std::string& text) {
    report_->SetActiveSheet(sheet);
    for (int row = 1; row <= report_->LastRow(); ++row)
      if (report_->CellText(row, 2) == text) return row;
    return 0;
  }

  // Repeats the sample rows of the windward table and of both force tables as the report
  // generator does, and writes heights (lower, upper) and areas.
  void FillRows(const std::vector<std::array<double, 3>>& rows) {
    const int count = static_cast<int>(rows.size());
    const struct {
      const char* start;
      const char* topRow;
      bool area;
    } tables[] = {
        {"Start", "TopRow", false}, {"Start2", "TopRow2", true}, {"Start3", "TopRow3", true}};
    for (const auto& [start, topRow, area] : tables) {
      for (const char* range : {start, topRow}) {
        report_->SetSelection(range);
        report_->SetSelLastRow(report_->SelFirstRow() + count - 1);
        report_->CopyDown();
      }
      const auto [sheet, first] = Where(start);
      report_->SetActiveSheet(sheet);
      for (int i = 0; i < count; ++i) {
        report_->SetCellNumber(first.row + i, 2, rows[i][0]);
        report_->SetCellNumber(first.row + i, 3, rows[i][1]);
        if (area) report_->SetCellNumber(first.row + i, 4, rows[i][2]);
      }
    }
  }

 private:
  std::unique_ptr<Workbook> windData_ = std::make_unique<Workbook>("WindData");
  std::unique_ptr<Workbook> report_;
};

// Rows from the first row (leeward wall) of the design pressure table and from the first
// row of the overhang table, which has the roof surfaces only (-1 for a wall).
struct SurfaceCase {
  const char* surface;
  int offset, overhangOffset;
  double cp, pPlus, pMinus, overhang;
};

TEST(Figure66FamilyTest, DefaultProjectGivesTheCheckPressures) {
  Figure66Report a("D", "Figure66A");
  a.Rebind();
  const auto [page, qh] = a.Where("qh");
  EXPECT_NEAR(a.At(page, qh.row, qh.col), 17.428542112355654, kTight);

  const int overhangPage = page + 1;
  const int overhangRow = a.RowOf(overhangPage, "Windward NTR");
  ASSERT_GT(overhangRow, 0);
  const SurfaceCase cases[] = {
      {"Leeward wall", 0, -1, -0.5, -16.992828559546762, 10, 0},
      {"Side wall", 1, -1, -0.7, -19.955680718647223, -10, 0},
      {"Windward NTR", 3, 0, -0.24, -13.141120752716164, 10, -15.406831227322398},
      {"Windward NTR", 4, 1, 0.26, -10, 13.43740596862621, -10},
      {"Leeward NTR", 5, 2, -0.6, -18.47425463909699, 10, -20.739965113703224},
      {"(1) PTR or NTR", 7, 3, -0.9, -22.918532877747687, -10, -25.18424335235392},
      {"(2) PTR or NTR", 8, 4, -0.9, -22.918532877747687, -10, -25.18424335235392},
      {"(3) PTR or NTR", 9, 5, -0.5, -16.992828559546762, 10, -19.258539034152996},
      {"(4) PTR or NTR", 10, 6, -0.3, -14.029976400446301, 10, -16.295686875052535},
      {"Cp = -0.18", 11, 7, -0.18, -12.252265104986025, 10, -14.517975579592258},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.surface);
    const int row = qh.row + c.offset;
    EXPECT_NEAR(a.At(page, row, qh.col - 3), c.cp, kTight);
    EXPECT_NEAR(a.At(page, row, qh.col + 4), c.pPlus, kTight);
    EXPECT_NEAR(a.At(page, row, qh.col + 5), c.pMinus, kTight);
    if (c.overhangOffset >= 0)
      EXPECT_NEAR(a.At(overhangPage, overhangRow + c.overhangOffset, 7), c.overhang, kTight);
  }
}

TEST(Figure66FamilyTest, WindwardRowAtOneFootTakesKzAtFifteenFeet) {
  Figure66Report a("D", "Figure66A");
  a.Rebind();
  a.FillRows({{{0, 1, 0}}});
  const auto [page, start] = a.Where("Start");
  EXPECT_NEAR(a.At(page, start.row, 4), 0.848884152077903, kTight);
  EXPECT_NEAR(a.At(page, start.row, 7), 13.01702048445193, kTight);
  EXPECT_NEAR(a.At(page, start.row, 13), -10, kTight);
  EXPECT_NEAR(a.At(page, start.row, 14), 18.437272091222923, kTight);
}

struct GustCase {
  const char* container;
  const char* name;
  const char* cell;
  double value;
  double gust;
};

TEST(Figure66FamilyTest, ComputedGustFactorsFollowTheirTemplate) {
  const GustCase cases[] = {
      {"D", "Figure66A", "GustType", 0, 0.85},
      {"F", "Figure66C", "GustType", 1, 0.8637780514443391},
      {"D", "Figure66B", "Structure", 2, 1.466562187121554},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Figure66Report report(c.container, c.name);
    WriteNamedNumber(report.Project(), c.cell, c.value);
    report.Rebind();
    EXPECT_NEAR(ReadNamedNumber(report.Report(), "Gust"), c.gust, kTight);
  }
}

// In ksf the bare MinPressure of Figure66A lifts every pressure to 10, while MinP of the
// others is 0.01 ksf and leaves the leeward wall as it comes. Figure66C's overhang keeps q
// out of its second term: q·G·Cp - G·0.8.
struct UnitCase {
  const char* container;
  const char* name;
  double leewardPPlus;
  double overhangWindward;
};

TEST(Figure66FamilyTest, MinimumRuleAndOverhangDifferByTemplate) {
  const double q = 17.428542112355654e-3;
  const double rigid = 0.8637780514443391;
  const UnitCase cases[] = {
      {"D", "Figure66A", -10, -10},
      {"F", "Figure66C", q * rigid * -0.5 - q * 0.55, q * rigid * -0.24 - rigid * 0.8},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Figure66Report report(c.container, c.name);
    WriteNamedNumber(report.Project(), "Pressure", 1);
    WriteNamedNumber(report.Project(), "GustType", 1);
    report.Rebind();
    const auto [page, qh] = report.Where("qh");
    EXPECT_NEAR(report.At(page, qh.row, qh.col + 4), c.leewardPPlus, kTight);
    const int overhangRow = report.RowOf(page + 1, "Windward NTR");
    EXPECT_NEAR(report.At(page + 1, overhangRow, 7), c.overhangWindward, kTight);
  }
}

// With qi+ taken at z = 30 ft, a windward row of Figure66A uses its own qz, the others the
// single qz of the design pressure table.
TEST(Figure66FamilyTest, InternalPressureAtHeightZDiffersInTheWindwardRows) {
  for (const char* name : {"Figure66A", "Figure66C"}) {
    SCOPED_TRACE(name);
    Figure66Report report(name == std::string("Figure66A") ? "D" : "F", name);
    WriteNamedNumber(report.Project(), "Fig63UseQi", 1);
    WriteNamedNumber(report.Project(), "Fig63Z", 30);
    report.Rebind();
    report.FillRows({{{0, 1, 0}}});
    const auto [page, start] = report.Where("Start");
    const double rowQz = report.At(page, start.row, 7);
    const double qz = ReadNamedNumber(report.Report(), "qz");
    EXPECT_NEAR(qz, 0.00256 * 2.01 * std::pow(30.0 / 900, 2 / 9.5) * 0.85 * 8100 * 0.87, 1e-9);
    EXPECT_NEAR(report.At(page, start.row, 8), name == std::string("Figure66A") ? rowQz : qz,
                kTight);
  }
}

// Two rows, 30 to 60 ft and 0 to 30 ft: shear and moment gather from the top whichever way
// the rows run, and each force row reads p- of its own windward row.
TEST(Figure66FamilyTest, ForcesAccumulateFromTheTopInEitherOrder) {
  for (int order : {0, 1}) {
    SCOPED_TRACE(order);
    Figure66Report a("D", "Figure66A");
    WriteNamedNumber(a.Project(), "Order", order);
    a.Rebind();
    const std::array<double, 3> top{30, 60, 100}, bottom{0, 30, 200};
    a.FillRows(order == 0 ? std::vector{top, bottom} : std::vector{bottom, top});
    for (int pass = 0; pass <= 2; ++pass) a.Report().Recalc();

    const auto [windward, start] = a.Where("Start");
    const int forces = a.Where("Start3").first;
    const int topRow = start.row + (order == 0 ? 0 : 1);
    const int baseRow = start.row + (order == 0 ? 1 : 0);
    const double pTop = a.At(windward, topRow, 14);
    const double pBase = a.At(windward, baseRow, 14);
    ASSERT_NE(pTop, pBase);
    EXPECT_EQ(a.At(forces, topRow, 5), pTop);
    const double fTop = 100 * pTop, fBase = 200 * pBase;
    EXPECT_NEAR(a.At(forces, topRow, 7), fTop, 1e-9);
    EXPECT_NEAR(a.At(forces, baseRow, 7), fTop + fBase, 1e-9);
    EXPECT_NEAR(a.At(forces, topRow, 9), fTop * 15, 1e-9);
    EXPECT_NEAR(a.At(forces, baseRow, 9), fTop * 45 + fBase * 15, 1e-9);
  }
}

struct ShapeCase {
  const char* container;
  const char* name;
  int pages;
  bool namesCategory;
};

TEST(Figure66FamilyTest, PagesAndTheExposureLetterName) {
  const ShapeCase cases[] = {
      {"D", "Figure66A", 7, true}, {"D", "Figure66B", 8, false}, {"F", "Figure66C", 8, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Figure66Report report(c.container, c.name);
    EXPECT_EQ(report.Report().SheetCount(), c.pages);
    EXPECT_EQ(report.Report().SheetName(c.pages), "Page " + std::to_string(c.pages));
    EXPECT_EQ(report.Report().DefinedName("Category").has_value(), c.namesCategory);
  }
}

}  // namespace
}  // namespace gustline::wb
