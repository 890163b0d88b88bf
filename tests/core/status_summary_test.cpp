#include <gtest/gtest.h>

#include <string>

#include "ProgramFolder.h"
#include "core/StatusSummary.h"
#include "core/workbook/model/NamedCells.h"

namespace gustline {
namespace {

struct PanelCase {
  const char* name;
  double value;
  int panel;
  std::string text;
};

class SummaryPanelTest : public ::testing::TestWithParam<PanelCase> {};

TEST_P(SummaryPanelTest, ShowsTheProjectValue) {
  wb::Workbook project("WindData");
  testing::FillProject(project, 90);
  wb::WriteNamedNumber(project, GetParam().name, GetParam().value);
  EXPECT_EQ(SummaryPanelText(project, GetParam().panel), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, SummaryPanelTest,
                         ::testing::Values(PanelCase{"WindSpeed", 90, 2, " V = 90.00 mph "},
                                           PanelCase{"WindSpeed", 145.456, 2, " V = 145.46 mph "},
                                           PanelCase{"Category", 0, 3, " I = 0.87 "},
                                           PanelCase{"Category", 1, 3, " I = 1.00 "},
                                           PanelCase{"Category", 2, 3, " I = 1.15 "},
                                           PanelCase{"Category", 3, 3, " I = 1.15 "},
                                           PanelCase{"Category", 4, 3, " I = 0.77 "},
                                           PanelCase{"Category", 5, 3, " I =  "},
                                           PanelCase{"Exposure", 0, 4, " Exposure = A"},
                                           PanelCase{"Exposure", 1, 4, " Exposure = B"},
                                           PanelCase{"Exposure", 3, 4, " Exposure = D"},
                                           PanelCase{"Exposure", -1, 4, " Exposure = "},
                                           PanelCase{"Height", 60, 5, " Height = 60.00 ft "},
                                           PanelCase{"Height", 7.5, 5, " Height = 7.50 ft "}));

}  // namespace
}  // namespace gustline
