#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ReportFixture.h"
#include "core/workbook/model/NamedCells.h"
#include "geometry/HeightList.h"

namespace gustline::report {
namespace {

// The built templates of the program, on the default project.
class ReportEndToEndTest : public ::testing::Test, public testing::ReportFixture {
 protected:
  ReportEndToEndTest() { state.applicationPath = GUSTLINE_BIN_DIR; }

  void Build(const TemplateId& id) {
    if (!std::filesystem::exists(TemplatePath(state.applicationPath, id)))
      GTEST_SKIP() << id.name << " is not built";
    generator.CreateReport(app);
    ASSERT_TRUE(prompt.messages.empty()) << prompt.messages.front().text;
    ASSERT_EQ(generator.TemplateName(), id.name);
  }
};

TEST_F(ReportEndToEndTest, LowRiseReportOfTheDefaultProject) {
  Build({"Figure610", TemplateContainer::D});
  EXPECT_EQ(wb::ReadNamedNumber(Report(), "qh"), 17.428542112355654);
}

TEST_F(ReportEndToEndTest, AllHeightsReportFollowsOrder) {
  Set("Structure", 1);
  const int rows = geometry::CountHeightRows(60, 0, "");
  struct Case {
    int order;
    int lowestRow;  // 0 to 15 ft
    int baseRow;
  };
  for (const Case c : {Case{0, 14 + rows - 1, 14 + rows - 1}, Case{1, 14, 14}}) {
    Set("Order", c.order);
    Build({"Figure66A", TemplateContainer::D});
    EXPECT_EQ(wb::ReadNamedNumber(Report(), "qh"), 17.428542112355654);
    // The windward row of the lowest interval: qz, p+ by the minimum rule, p−.
    EXPECT_EQ(Cell(5, c.lowestRow, 7).AsNumber(), 13.01702048445193) << "order " << c.order;
    EXPECT_EQ(Cell(5, c.lowestRow, 13).AsNumber(), -10);
    EXPECT_EQ(Cell(5, c.lowestRow, 14).AsNumber(), 18.437272091222923);
    const int s = 14 + rows - 1 + 4;
    for (const int sheet : {6, 7}) {
      EXPECT_EQ(Cell(sheet, s + 1, 2), wb::Value::Text("Base Shear"));
      EXPECT_EQ(Formula(sheet, s + 1, 4), "$G$" + std::to_string(c.baseRow));
      EXPECT_EQ(Cell(sheet, s + 1, 4), Cell(sheet, c.baseRow, 7));
    }
  }
}

}  // namespace
}  // namespace gustline::report
