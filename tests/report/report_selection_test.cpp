#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "report/ReportSelection.h"
#include "report/TemplateCatalog.h"

namespace gustline::report {
namespace {

using enum TemplateContainer;
using enum ReportBuilder;

struct ChoiceCase {
  const char* what;
  SelectionInputs in;
  const char* name;
  TemplateContainer container;
  ReportBuilder builder;
};

// Inputs by field: table, figure, system, structure, gustType, roofType, note5, b124,
// height, width.
TEST(ReportSelectionTest, ChoosesTheTemplateAndBuilderOfEachRow) {
  const std::vector<ChoiceCase> cases = {
      {"simplified first, whatever else",
       {0, 1, 0, 1, 0, 1, false, 1},
       "SimpMFWRS",
       F,
       SimplifiedMwfrs},
      {"simplified, open structure", {0, 1, 2, 0, 0, 9, false, 1}, "SimpCompAndClad", F, Plain},
      {"low-rise, any figure", {0, 5, 0, 0, 2}, "Figure610", D, LowRise},
      {"enclosed, 6-6, G 0.85", {0, 1, 0, 1, 0}, "Figure66A", D, TablesWithAreas},
      {"enclosed, 6-6, rigid", {0, 1, 0, 1, 1}, "Figure66C", F, TablesWithAreas},
      {"enclosed, 6-8, rigid", {0, 8, 0, 1, 1}, "Figure68C", F, TablesWithAreas},
      {"enclosed, domes", {0, 9, 0, 1, 0}, "Figure67A", G, TablesWithAreas},
      {"partially enclosed, any gust", {0, 1, 0, 2, 2}, "Figure66B", D, TablesWithAreas},
      {"partially enclosed, 6-8", {0, 8, 0, 2, 1}, "Figure68B", B, TablesWithAreas},
      {"cladding 6-11B", {0, 3, 1, 0}, "Figure611B", D, Cladding},
      {"cladding 6-14B", {0, 6, 1, 0}, "Figure614B", D, Cladding},
      {"cladding above 60 ft", {0, 2, 1, 1}, "Figure617", D, Figure617},
      {"cladding 6-8 on F", {0, 8, 1, 2}, "Figure68B", F, PlainWithHeading},
      {"cladding, other figure", {0, 2, 1, 2}, "figure616A", G, PlainWithHeading},
      {"free roof, G 0.85",
       {0, 0, 2, 0, 0, 3, false, 0, 50, 100},
       "Figure618C",
       A,
       PlainWithHeading},
      {"free roof, flexible",
       {1, 0, 2, 0, 2, 4, false, 0, 50, 100},
       "Fig618D",
       B,
       PlainWithHeading},
      {"free roof C&C, rigid",
       {2, 0, 2, 0, 1, 2, false, 0, 50, 100},
       "Fig619B",
       F,
       PlainWithHeading},
      {"signs", {3, 0, 2, 0, 2}, "Fig620", B, SolidSigns},
      {"chimneys, rigid", {4, 0, 2, 0, 1}, "Figure619C", F, Figure621},
      {"chimneys, flexible", {4, 0, 2, 0, 2}, "Figure619B", B, Figure621},
      {"open signs, G 0.85", {5, 0, 2, 0, 0}, "Figure621A", A, Figure622},
      {"towers, rigid", {6, 0, 2, 0, 1}, "Figure622C", F, Figure623},
      {"special, G 0.85", {7, 0, 2, 0, 0}, "TableSpecial", D, SpecialCase},
      {"special, rigid", {7, 0, 2, 0, 1}, "TableSpecialD", F, SpecialCase},
      {"special, flexible stays on D", {7, 0, 2, 0, 2}, "TableSpecialB", D, SpecialCase},
      // h/w by its edges: 0.25 passes both checks, 0.05 and 1.0 pass theirs.
      {"h/w 0.25 with Note 5",
       {0, 0, 2, 0, 0, 1, true, 0, 25, 100},
       "Figure618A",
       A,
       PlainWithHeading},
      {"h/w 0.05 with Note 5",
       {1, 0, 2, 0, 0, 1, true, 0, 5, 100},
       "Figure618A",
       A,
       PlainWithHeading},
      {"h/w 1.0 without",
       {0, 0, 2, 0, 0, 1, false, 0, 100, 100},
       "Figure618A",
       A,
       PlainWithHeading},
      {"h/w 0.25, table 2", {2, 0, 2, 0, 0, 3, true, 0, 25, 100}, "Fig619C", A, PlainWithHeading},
      // The other rows, one each.
      {"simplified switch 0.5", {0, 1, 2, 0, 0, 0, false, 0.5}, "SimpCompAndClad", F, Plain},
      {"enclosed, 6-8, G 0.85", {0, 8, 0, 1, 0}, "Figure68A", D, TablesWithAreas},
      {"enclosed, domes, rigid", {0, 9, 0, 1, 1}, "Figure67C", G, TablesWithAreas},
      {"partially enclosed, domes", {0, 9, 0, 2, 0}, "Figure67B", G, TablesWithAreas},
      {"cladding 6-13", {0, 4, 1, 0}, "Figure613", D, Cladding},
      {"cladding 6-14A", {0, 5, 1, 0}, "Figure614A", D, Cladding},
      {"free roof, table 1",
       {1, 0, 2, 0, 0, 2, false, 0, 60, 100},
       "Figure618B",
       A,
       PlainWithHeading},
      {"free roof, rigid", {0, 0, 2, 0, 1, 3, false, 0, 60, 100}, "Fig618C", F, PlainWithHeading},
      {"free roof C&C", {2, 0, 2, 0, 0, 1, false, 0, 60, 100}, "Fig619A", A, PlainWithHeading},
      {"free roof C&C, flexible",
       {2, 0, 2, 0, 2, 3, false, 0, 60, 100},
       "Fig619C",
       B,
       PlainWithHeading},
      {"signs, G 0.85", {3, 0, 2, 0, 0}, "Fig620", A, SolidSigns},
      {"signs, rigid", {3, 0, 2, 0, 1}, "Fig620", F, SolidSigns},
      {"chimneys, G 0.85", {4, 0, 2, 0, 0}, "Figure619A", A, Figure621},
      {"open signs, rigid", {5, 0, 2, 0, 1}, "Figure621C", F, Figure622},
      {"open signs, flexible", {5, 0, 2, 0, 2}, "Figure621B", B, Figure622},
      {"towers, G 0.85", {6, 0, 2, 0, 0}, "Figure622A", A, Figure623},
      {"towers, flexible", {6, 0, 2, 0, 2}, "Figure622B", B, Figure623},
  };
  for (const ChoiceCase& c : cases) {
    const Selection selection = SelectTemplate(c.in);
    const auto* chosen = std::get_if<ChosenTemplate>(&selection);
    ASSERT_NE(chosen, nullptr) << c.what;
    EXPECT_EQ(chosen->id, (TemplateId{c.name, c.container})) << c.what;
    EXPECT_EQ(FindTemplate(chosen->id).builder, c.builder) << c.what;
  }
}

TEST(ReportSelectionTest, RefusesAnOpenStructureOutsideItsRatio) {
  const std::string note5Text =
      "Structure height \\ Structure width out of range for Note 5 to apply.  Valid range is "
      "0.05 to 0.25";
  const std::string ratioText =
      "Structure height / Structure width must be greater than or equal to 0.25 and less than "
      "or equal to 1.0 ";
  struct Case {
    const char* what;
    SelectionInputs in;
    const std::string& text;
    PromptIcon icon;
  };
  const std::vector<Case> cases = {
      {"Note 5 above 0.25",
       {0, 0, 2, 0, 0, 1, true, 0, 26, 100},
       note5Text,
       PromptIcon::Exclamation},
      {"Note 5 below 0.05",
       {1, 0, 2, 0, 0, 1, true, 0, 4.9, 100},
       note5Text,
       PromptIcon::Exclamation},
      {"below 0.25", {0, 0, 2, 0, 0, 1, false, 0, 24, 100}, ratioText, PromptIcon::Stop},
      {"table 2 ignores Note 5", {2, 0, 2, 0, 0, 1, true, 0, 10, 100}, ratioText, PromptIcon::Stop},
      {"zero width", {0, 0, 2, 0, 0, 1, false, 0, 60, 0}, ratioText, PromptIcon::Stop},
      {"zero height and width", {0, 0, 2, 0, 0, 1, false, 0, 0, 0}, ratioText, PromptIcon::Stop},
  };
  for (const Case& c : cases) {
    const Selection selection = SelectTemplate(c.in);
    const auto* refusal = std::get_if<RangeRefusal>(&selection);
    ASSERT_NE(refusal, nullptr) << c.what;
    EXPECT_EQ(refusal->message, (Message{"Error", c.text, c.icon})) << c.what;
  }
}

TEST(ReportSelectionTest, CombinationsWithoutARowKeepTheFormerReport) {
  struct Case {
    const char* what;
    SelectionInputs in;
    bool invalidRoof;
  };
  const std::vector<Case> cases = {
      {"enclosed, flexible", {0, 1, 0, 1, 2}, false},
      {"cladding, figure 7", {0, 7, 1, 0}, false},
      {"system 3", {0, 1, 3, 0}, false},
      {"open structure, gust type 3", {3, 0, 2, 0, 3}, false},
      {"free roof, roof type 5", {0, 0, 2, 0, 0, 5, false, 0, 50, 100}, true},
      {"free roof C&C, roof type 4", {2, 0, 2, 0, 1, 4, false, 0, 50, 100}, true},
  };
  for (const Case& c : cases) {
    const Selection selection = SelectTemplate(c.in);
    const auto* none = std::get_if<NoTemplate>(&selection);
    ASSERT_NE(none, nullptr) << c.what;
    if (c.invalidRoof)
      EXPECT_EQ(none->message, (Message{"", "Invalid roof type"})) << c.what;
    else
      EXPECT_FALSE(none->message) << c.what;
  }
}

}  // namespace
}  // namespace gustline::report
