// The Figure 6-6 report family, built and linked to the built WindData: the check values of
// the default project and the differences between Figure66A, Figure66B and Figure66C.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "LinkedReport.h"
#include "core/workbook/CellAddress.h"

namespace gustline::templates::testing {
namespace {

constexpr double kTight = 1e-12;

// A built member of the family, with iteration on for the shear and moment chains, as the
// report generator sets it.
LinkedReport Open(const std::string& name) {
  auto report = LinkedReport::Template(name == "Figure66C" ? "F" : "D", name);
  report.Report().SetIteration(true, 100, 0.001);
  return report;
}

// The sheet and first cell of a defined name of the report.
std::pair<int, wb::CellAddress> Where(LinkedReport& report, const std::string& name) {
  const auto found = report.Report().ResolveReference(name);
  return {found->first, {found->second.firstRow, found->second.firstCol}};
}

double At(LinkedReport& report, int sheet, int row, int col) {
  return report.Number("'Page " + std::to_string(sheet) + "'!" + wb::CellRefText(row, col, false));
}

// Repeats the sample rows of the windward table and of both force tables as the report
// generator does, and writes heights (lower, upper) and areas.
void FillRows(LinkedReport& report, const std::vector<std::array<double, 3>>& rows) {
  wb::Workbook& book = report.Report();
  const int count = static_cast<int>(rows.size());
  const struct {
    const char* start;
    const char* topRow;
    bool area;
  } tables[] = {
      {"Start", "TopRow", false}, {"Start2", "TopRow2", true}, {"Start3", "TopRow3", true}};
  for (const auto& [start, topRow, area] : tables) {
    for (const char* range : {start, topRow}) {
      book.SetSelection(range);
      book.SetSelLastRow(book.SelFirstRow() + count - 1);
      book.CopyDown();
    }
    const auto [sheet, first] = Where(report, start);
    book.SetActiveSheet(sheet);
    for (int i = 0; i < count; ++i) {
      book.SetCellNumber(first.row + i, 2, rows[i][0]);
      book.SetCellNumber(first.row + i, 3, rows[i][1]);
      if (area) book.SetCellNumber(first.row + i, 4, rows[i][2]);
    }
  }
}

// Rows from the first row (leeward wall) of the design pressure table and from the first
// row of the overhang table, which has the roof surfaces only (-1 for a wall).
struct SurfaceCase {
  const char* surface;
  int offset, overhangOffset;
  double cp, pPlus, pMinus, overhang;
};

TEST(Figure66FamilyTest, DefaultProjectGivesTheCheckPressuresOfFigure66A) {
  auto a = Open("Figure66A");
  const auto [page, qh] = Where(a, "qh");
  EXPECT_NEAR(At(a, page, qh.row, qh.col), 17.428542112355654, kTight);

  const int overhangPage = page + 1;
  const int overhangRow = a.RowOf(overhangPage, 2, "Windward NTR");
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
      {"Cp = -0.18", 11, 7, -0.18, -12.252265104986025, 10, -14.517975579592258}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.surface);
    const int row = qh.row + c.offset;
    EXPECT_NEAR(At(a, page, row, qh.col - 3), c.cp, kTight);
    EXPECT_NEAR(At(a, page, row, qh.col + 4), c.pPlus, kTight);
    EXPECT_NEAR(At(a, page, row, qh.col + 5), c.pMinus, kTight);
    if (c.overhangOffset >= 0)
      EXPECT_NEAR(At(a, overhangPage, overhangRow + c.overhangOffset, 7), c.overhang, kTight);
  }

  // A windward row at z = 1 ft takes Kz at 15 ft.
  FillRows(a, {{{0, 1, 0}}});
  const auto [windward, start] = Where(a, "Start");
  EXPECT_NEAR(At(a, windward, start.row, 4), 0.848884152077903, kTight);
  EXPECT_NEAR(At(a, windward, start.row, 7), 13.01702048445193, kTight);
  EXPECT_NEAR(At(a, windward, start.row, 13), -10, kTight);
  EXPECT_NEAR(At(a, windward, start.row, 14), 18.437272091222923, kTight);
}

struct GustCase {
  const char* name;
  const char* cell;
  double value;
  double gust;
};

TEST(Figure66FamilyTest, ComputedGustFactorsFollowTheirTemplate) {
  const GustCase cases[] = {{"Figure66C", "GustType", 1, 0.8637780514443391},
                            {"Figure66B", "Structure", 2, 1.466562187121554}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    auto report = Open(c.name);
    report.Set(c.cell, c.value);
    EXPECT_NEAR(report.Number("Gust"), c.gust, kTight);
  }
}

// In ksf the bare MinPressure of Figure66A lifts every pressure to 10, while MinP of the
// others is 0.01 ksf and leaves the leeward wall as it comes. Figure66C's overhang keeps q
// out of its second term: q·G·Cp - G·0.8.
struct UnitCase {
  const char* name;
  double leewardPPlus;
  double overhangWindward;
};

TEST(Figure66FamilyTest, MinimumRuleAndOverhangDifferByTemplate) {
  const double q = 17.428542112355654e-3;
  const double rigid = 0.8637780514443391;
  const UnitCase cases[] = {
      {"Figure66A", -10, -10},
      {"Figure66C", q * rigid * -0.5 - q * 0.55, q * rigid * -0.24 - rigid * 0.8}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    auto report = Open(c.name);
    report.Set("Pressure", 1);
    report.Set("GustType", 1);
    const auto [page, qh] = Where(report, "qh");
    EXPECT_NEAR(At(report, page, qh.row, qh.col + 4), c.leewardPPlus, kTight);
    const int overhangRow = report.RowOf(page + 1, 2, "Windward NTR");
    EXPECT_NEAR(At(report, page + 1, overhangRow, 7), c.overhangWindward, kTight);
  }
}

// With qi+ taken at z = 30 ft, a windward row of Figure66A uses its own qz, the others the
// single qz of the design pressure table.
TEST(Figure66FamilyTest, InternalPressureAtHeightZDiffersInTheWindwardRows) {
  for (const char* name : {"Figure66A", "Figure66C"}) {
    SCOPED_TRACE(name);
    auto report = Open(name);
    report.Set("Fig63UseQi", 1);
    report.Set("Fig63Z", 30);
    FillRows(report, {{{0, 1, 0}}});
    const auto [page, start] = Where(report, "Start");
    const double rowQz = At(report, page, start.row, 7);
    const double qz = report.Number("qz");
    EXPECT_NEAR(qz, 0.00256 * 2.01 * std::pow(30.0 / 900, 2 / 9.5) * 0.85 * 8100 * 0.87, 1e-9);
    EXPECT_NEAR(At(report, page, start.row, 8), name == std::string("Figure66A") ? rowQz : qz,
                kTight);
  }
}

// Two rows, 30 to 60 ft and 0 to 30 ft: shear and moment gather from the top whichever way
// the rows run, and each force row reads p- of its own windward row.
TEST(Figure66FamilyTest, ForcesAccumulateFromTheTopInEitherOrder) {
  for (int order : {0, 1}) {
    SCOPED_TRACE(order);
    auto a = Open("Figure66A");
    a.Set("Order", order);
    const std::array<double, 3> top{30, 60, 100}, bottom{0, 30, 200};
    FillRows(a, order == 0 ? std::vector{top, bottom} : std::vector{bottom, top});
    for (int pass = 0; pass <= 2; ++pass) a.Report().Recalc();

    const auto [windward, start] = Where(a, "Start");
    const int forces = Where(a, "Start3").first;
    const int topRow = start.row + (order == 0 ? 0 : 1);
    const int baseRow = start.row + (order == 0 ? 1 : 0);
    const double pTop = At(a, windward, topRow, 14);
    const double pBase = At(a, windward, baseRow, 14);
    ASSERT_NE(pTop, pBase);
    EXPECT_EQ(At(a, forces, topRow, 5), pTop);
    const double fTop = 100 * pTop, fBase = 200 * pBase;
    EXPECT_NEAR(At(a, forces, topRow, 7), fTop, 1e-9);
    EXPECT_NEAR(At(a, forces, baseRow, 7), fTop + fBase, 1e-9);
    EXPECT_NEAR(At(a, forces, topRow, 9), fTop * 15, 1e-9);
    EXPECT_NEAR(At(a, forces, baseRow, 9), fTop * 45 + fBase * 15, 1e-9);
  }
}

}  // namespace
}  // namespace gustline::templates::testing
