#include <gtest/gtest.h>

#include <algorithm>

#include "core/FileNew.h"
#include "ui/HeadingsValues.h"
#include "ui/frmNewValues.h"

namespace gustline {
namespace {

TEST(HeadingsTest, DateTextsAreNormalisedToTheShortDate) {
  const std::pair<const char*, const char*> cases[] = {
      {"45678", "1/21/2025"},     {"45678.75", "1/21/2025"},  {"01/02/24", "1/2/2024"},
      {"3/4/95", "3/4/1995"},     {"2024-03-05", "3/5/2024"}, {"12-31-1999", "12/31/1999"},
      {"2/30/2024", "2/30/2024"}, {"next week", "next week"}, {" ", " "}};
  for (const auto& [text, shown] : cases) EXPECT_EQ(NormalizeDate(text), shown) << text;
}

TEST(NewProjectTest, RowsAndDescriptionsRunInTheChoosersOrder) {
  const std::vector<NewProjectRow>& rows = NewProjectRows();
  ASSERT_EQ(rows.size(), NewProjectPresetKeys().size());
  // The first row stands one space in, the figure rows two.
  const std::pair<std::size_t, const char*> listRows[] = {
      {0, " Normal"},
      {1, "  MWFRS Figure 6-10"},
      {5, "  MWFRS Figure 6-6 Flexible"},
      {8, "  CLADDING Figure 6-11"},
      {11, "  CLADDING Figure 6-14A"},
      {15, "  CLADDING Figure 6-8"},
      {16, "  OBOS Figure 6-18A"},
  };
  for (const auto& [row, text] : listRows) EXPECT_EQ(rows[row].listText, text) << row;

  // Each description first shows up in the order of the rows.
  std::vector<std::string> firstSeen;
  for (std::size_t i = 1; i < rows.size(); ++i) {
    if (std::find(firstSeen.begin(), firstSeen.end(), rows[i].description) == firstSeen.end())
      firstSeen.push_back(rows[i].description);
  }
  const std::vector<std::string> descriptions = {
      "  Low-Rise Buildings - Gable Roof",
      "  Buildings of All Heights",
      "  Domed Roofs",
      "  Arched Roofs",
      "  Gabled, Hipped Roofs",
      "  Stepped Roofs",
      "  Multispan Gabled Roofs",
      "  Monoslope Roofs",
      "  Sawtooth Roofs-Two or More Spans",
      "  Mean Roof Height > 60.0",
      "  Monoslope Free Roofs",
      "  Pitched Free Roofs",
      "  Troughed Free Roofs",
      "  Free Roofs",
      "  Solid Freestanding Walls & Solid Signs",
      "  Chimneys, Tanks, Rooftop Equipment & Similar Structures",
      "  Open Signs and Lattice Frameworks",
      "  Trussed Towers",
      "  Special Case"};
  EXPECT_EQ(firstSeen, descriptions);
  EXPECT_EQ(NewProjectDescription("OBOS Figure 6-22 Flexible"),
            "  Open Signs and Lattice Frameworks");
}

}  // namespace
}  // namespace gustline
