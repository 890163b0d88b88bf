#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

std::unique_ptr<Workbook> MakeProject(const char* name) {
  auto project = std::make_unique<Workbook>(name);
  project->AddSheet("Sheet2");
  project->AddSheet("Sheet3");
  project->SetCellNumber(24, 2, 30);
  project->SetDefinedName("Height", "Sheet1!$B$24");
  project->SetActiveSheet(3);
  project->SetCellFormula(5, 1, "Sheet1!B24*2");
  project->SetActiveSheet(1);
  project->SetDefinedName("U_Str_Force", "Sheet3!$A$5");
  return project;
}

// Two report books built alike; what happens between parse and re-entry happens to both.
struct Reports {
  std::unique_ptr<Workbook> project = MakeProject("WindData");
  std::unique_ptr<Workbook> late;
  Workbook direct{"ReportA"};
  Workbook byText{"ReportB"};

  Reports() {
    for (Workbook* report : {&direct, &byText}) {
      report->SetAutoRecalc(false);
      report->AddSheet("Page2");
      report->SetActiveSheet(2);
      report->SetCellNumber(1, 1, 5);
      report->SetActiveSheet(1);
    }
  }
  void ForBoth(const std::function<void(Workbook&)>& change) {
    change(direct);
    change(byText);
  }
};

struct Case {
  const char* what;
  const char* formula;
  std::function<void(Reports&)> between;
  bool sharedKept;  // nothing moved: the cell keeps its compiled formula
};

TEST(ReenterFormulaTest, BindsAsReadingItsTextBackWould) {
  const Case cases[] = {
      {"a link to the open project stays", "[WindData]Sheet3!U_Str_Force+1", [](Reports&) {}, true},
      {"a link to a book opened later binds", "[LateBook]Sheet1!Height*2",
       [](Reports& r) { r.late = MakeProject("LateBook"); }, false},
      {"a project opened anew is the one read", "[WindData]Sheet1!$B$24+[WindData]Sheet1!Height",
       [](Reports& r) {
         r.project.reset();
         r.project = MakeProject("WindData");
         r.project->SetCellNumber(24, 2, 44);
       },
       false},
      {"a closed project leaves the link unbound", "[WindData]Sheet1!Height",
       [](Reports& r) { r.project.reset(); }, false},
      {"a renamed sheet follows", "Page2!A1*3",
       [](Reports& r) { r.ForBoth([](Workbook& b) { b.SetSheetName(2, "Page 4"); }); }, false},
      {"a sheet added later is found", "Later!A1+Page2!A1",
       [](Reports& r) { r.ForBoth([](Workbook& b) { b.AddSheet("Later"); }); }, false},
      {"a deleted sheet reads back as #REF!", "Page2!A1+1",
       [](Reports& r) { r.ForBoth([](Workbook& b) { b.DeleteSheets(2, 1); }); }, false},
      {"a name defined later is seen", "Gust*2",
       [](Reports& r) { r.ForBoth([](Workbook& b) { b.SetDefinedName("Gust", "Page2!$A$1"); }); },
       true},
      {"a formula without references goes by its text", "1+2", [](Reports&) {}, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Reports r;
    r.ForBoth([&c](Workbook& b) { b.SetCellFormula(3, 2, c.formula); });
    const Formula* before = r.direct.GetSheet(1).Find(3, 2)->formula.get();
    c.between(r);

    r.direct.ReenterFormula(3, 2);
    r.byText.SetCellFormula(3, 2, r.byText.CellFormula(3, 2));

    const Cell* direct = r.direct.GetSheet(1).Find(3, 2);
    const Cell* byText = r.byText.GetSheet(1).Find(3, 2);
    ASSERT_TRUE(direct->IsFormula());
    EXPECT_EQ(r.direct.CellFormula(3, 2), r.byText.CellFormula(3, 2));
    EXPECT_EQ(HasUnboundLink(*direct->formula), HasUnboundLink(*byText->formula));
    r.direct.Recalc();
    r.byText.Recalc();
    EXPECT_EQ(r.direct.CellValue(3, 2), r.byText.CellValue(3, 2));
    if (c.sharedKept) {
      EXPECT_EQ(direct->formula.get(), before);
    }
  }
}

// Rows filled from one sample row share its compiled formula; each row keeps its own
// relative references when the shared link is bound to a project opened anew.
TEST(ReenterFormulaTest, RowsThatShareAFormulaKeepTheirOwnReferences) {
  auto project = MakeProject("WindData");
  Workbook report("Report");
  report.SetAutoRecalc(false);
  report.SetCellNumber(1, 1, 1);
  report.SetCellFormula(2, 1, "A1+[WindData]Sheet1!Height");
  report.SetSelection("A2:A4");
  report.CopyDown();
  project = MakeProject("WindData");
  project->SetCellNumber(24, 2, 10);
  for (int row = 2; row <= 4; ++row) report.ReenterFormula(row, 1);
  report.Recalc();
  EXPECT_EQ(report.CellFormula(4, 1), "A3+[WindData]Sheet1!Height");
  EXPECT_EQ(report.CellValue(4, 1), Value::Number(31));
}

}  // namespace
}  // namespace gustline::wb
