#include <gtest/gtest.h>

#include "core/workbook/model/Workbook.h"
#include "ui/WindDataSections.h"

namespace gustline {
namespace {

// Every section but Topography, a label of the project's rows that no name marks, which the
// list therefore passes over.
TEST(WindDataSectionsTest, EverySectionOfTheListIsANameOfTheProject) {
  wb::Workbook project("WindData");
  project.ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  for (const std::string_view caption : kWindDataSections) {
    SCOPED_TRACE(caption);
    project.SetActiveSheet(project.SheetCount());
    const bool named = caption != "Topography";
    ASSERT_EQ(GoToSection(project, caption), named);
    if (!named) continue;
    EXPECT_EQ(project.ActiveSheet(), 1);
    EXPECT_EQ(project.TopRow(), project.SelFirstRow());
  }
}

TEST(WindDataSectionsTest, CaptionsBecomeNames) {
  const struct {
    const char* caption;
    const char* name;
  } cases[] = {{"Design Equation", "DesignEquation"},
               {"Physical Properties", "PhysicalProp"},
               {"Figures And Tables", "FiguresTables"},
               {"Table_6_10", "Table_6_10"}};
  for (const auto& c : cases) EXPECT_EQ(SectionName(c.caption), c.name);
}

TEST(WindDataSectionsTest, AnUnknownSectionMovesNothing) {
  wb::Workbook project("WindData");
  project.ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  ASSERT_TRUE(GoToSection(project, "Heights"));
  const int top = project.TopRow();
  EXPECT_FALSE(GoToSection(project, "No Such Section"));
  EXPECT_EQ(project.TopRow(), top);
}

}  // namespace
}  // namespace gustline
