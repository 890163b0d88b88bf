// The project data sheet of the built WindData: sheets, defaults, labels, names.
#include <gtest/gtest.h>

#include <ctime>

#include "BuiltWindData.h"

namespace gustline::books::testing {
namespace {

class ProjectDataTest : public ::testing::Test {
 protected:
  std::unique_ptr<wb::Workbook> book_ = OpenBuiltWindData();
};

TEST_F(ProjectDataTest, SheetsStandInTheirOrder) {
  std::vector<std::string> names;
  for (int i = 1; i <= book_->SheetCount(); ++i) names.push_back(book_->SheetName(i));
  EXPECT_EQ(names, (std::vector<std::string>{"Sheet1", "Sheet2", "Sheet3", "Sheet7", "Sheet4",
                                             "Sheet5", "Sheet6"}));
}

TEST_F(ProjectDataTest, NumbersHoldTheirDefaults) {
  const std::pair<const char*, double> defaults[] = {
      {"System", 0},
      {"Exposure", 2},
      {"WindSpeed", 90},
      {"kd", 1},
      {"HillType", 4},
      {"Hillheight", 200},
      {"HillLh", 100},
      {"HillX", 100},
      {"Height", 60},
      {"Frequency", 0.2},
      {"Damping", 0.01},
      {"Figure", 1},
      {"Figure63Area", 150},
      {"Table64", 1},
      {"Table64Exp", 1},
      {"Table65Ratio", 0.23},
      {"Table66Angle", 10},
      {"Table66RoofType", 1},
      {"Table69Ratio", 0.2},
      {"UseMinWindPressure", 1},
      {"Zone2Neg", -23.2},
      {"Zone1Area", 10},
      {"EncClassSim", 1},
      {"SimplifiedAngle", 25},
      {"Zg", 900},
      {"DomeD", 80},
      {"HasParapets", 0},
      {"ParapetHeight", 2},
      {"ParapetElevation", 62},
      {"Dimension_a", 10},
      {"RatioOfSolidAreaToGrossArea", 0.9},
      {"AfBhRatio", 1},
      {"OKPressedOnGeometryForm", 0},
      {"B92", 0},
      {"B93", 45},
      {"B148", 0},
  };
  for (const auto& [name, value] : defaults) EXPECT_EQ(Number(*book_, name), value) << name;
}

TEST_F(ProjectDataTest, TextsHoldTheirDefaults) {
  const std::pair<const char*, const char*> defaults[] = {
      {"Company", " "},
      {"Fileno", " "},
      {"UserIntervals", "1,"},
      {"Table67Dia", "50,50,50,50,50,50,50"},
      {"Table610Ratios", ".10,.10,.10,.10,.10,.10,.10"},
      {"TableSpecialCoefficients", "1.00,"}};
  for (const auto& [name, text] : defaults)
    EXPECT_EQ(wb::ReadNamedText(*book_, name), text) << name;
}

TEST_F(ProjectDataTest, LabelsStayAsWritten) {
  const std::pair<const char*, const char*> labels[] = {
      {"A1", "Description"},
      {"B1", "Value"},
      {"A18", "Topography"},
      {"A41", "Fig63WindwardAngle (°)"},
      {"A125", "BegEindPressureWall"},
      {"A152", "Simplified Enclosure Classificaiton"},
      {"A180", "Parapet Internal Coefficient "},
      {"A181", "Parapet Elevation (for 6-17) :"},
      {"A85", "Table 6-6 (Figure 6-18A thru D)"}};
  for (const auto& [cell, label] : labels)
    EXPECT_EQ(CellAt(*book_, "Sheet1", cell).AsText(), label) << cell;
}

TEST_F(ProjectDataTest, SimplifiedSwitchIsEmptyAndReadsAsZero) {
  EXPECT_TRUE(CellAt(*book_, "Sheet1", "B124").IsEmpty());
  EXPECT_EQ(wb::ReadNamedInt(*book_, "B124"), 0);
}

TEST_F(ProjectDataTest, UnnamedRowsHaveNoName) {
  book_->SetActiveSheet(1);
  for (int row : {92, 93, 94, 124, 148}) EXPECT_EQ(wb::FindNameOfCell(*book_, row, 2), "") << row;
  EXPECT_EQ(wb::FindNameOfCell(*book_, 144, 2), "Fig63UseQi");
  EXPECT_EQ(wb::FindNameOfCell(*book_, 150, 2), "Vi");
}

TEST_F(ProjectDataTest, HasParapetAndHasParapetsAreOneCell) {
  EXPECT_EQ(book_->DefinedName("HasParapet"), "Sheet1!$B$178");
  EXPECT_EQ(book_->DefinedName("HasParapets"), "Sheet1!$B$178");
  Set(*book_, "HasParapets", 1);
  EXPECT_EQ(Number(*book_, "HasParapet"), 1);
}

TEST_F(ProjectDataTest, DateIsTheTimeOfTheLastCalculation) {
  book_->SetActiveSheet(1);
  EXPECT_EQ(book_->CellFormula(8, 2), "NOW()");
  // Serial day numbers count from 30 December 1899.
  const double today = static_cast<double>(std::time(nullptr)) / 86400.0 + 25569.0;
  EXPECT_NEAR(Number(*book_, "Date"), today, 1.0);
}

TEST_F(ProjectDataTest, LateNamesOfStartUpAreDefined) {
  const std::pair<const char*, const char*> names[] = {
      {"Table66RoofType", "Sheet1!$B$87"},
      {"Note5Applies", "Sheet1!$B$200"},
      {"Dimension_a", "Sheet1!$B$187"},
      {"ClearanceRatio", "Sheet1!$B$190"},
      {"AspectRatio", "Sheet1!$B$191"},
      {"DepthRatio", "Sheet1!$B$192"},
      {"SignHorzDim", "Sheet1!$B$193"},
      {"SignHeight", "Sheet1!$B$194"},
      {"SignVertDim", "Sheet1!$B$195"},
      {"RatioOfSolidAreaToGrossArea", "Sheet1!$B$196"},
      {"HorzDimOfReturnCorner", "Sheet1!$B$197"},
      {"Fig611BZone4", "Sheet1!$B$203"},
      {"Fig611BZone5", "Sheet1!$B$204"},
      {"Fig611Note5Applies", "Sheet1!$B$205"},
      {"Use_6_5_15_1", "Sheet1!$B$208"},
      {"AfBhRatio", "Sheet1!$B$209"},
      {"Sect_6_5_15_1_MultFactor", "Sheet6!$B$35"},
      {"OKPressedOnGeometryForm", "Sheet1!$B$212"}};
  for (const auto& [name, refersTo] : names) EXPECT_EQ(book_->DefinedName(name), refersTo) << name;
}

TEST_F(ProjectDataTest, OutlineIsTheDefaultRectangle) {
  const double points[][2] = {{0, 0}, {0, 60}, {50, 60}, {50, 0}, {0, 0}};
  book_->SetActiveSheet(2);
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(std::pair(book_->CellNumber(i + 1, 1), book_->CellNumber(i + 1, 2)),
              std::pair(points[i][0], points[i][1]))
        << i;
  EXPECT_EQ(book_->GetSheet(2).LastRow(), 5);
}

TEST_F(ProjectDataTest, GradientHeightFollowsExposure) {
  const double zg[] = {1500, 1200, 900, 700};
  for (int exposure = 0; exposure < 4; ++exposure) {
    Set(*book_, "Exposure", exposure);
    EXPECT_EQ(Number(*book_, "Zg"), zg[exposure]) << exposure;
  }
}

}  // namespace
}  // namespace gustline::books::testing
