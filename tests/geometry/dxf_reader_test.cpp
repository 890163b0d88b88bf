#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/workbook/model/Workbook.h"
#include "geometry/DxfReader.h"
#include "geometry/SortLines.h"

namespace gustline::geometry {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

// A LINE entity as a drawing writes it, layer and z values included.
std::string Line(const char* x1, const char* y1, const char* x2, const char* y2) {
  return std::string("  0\r\nLINE\r\n  8\r\n0\r\n 10\r\n") + x1 + "\r\n 20\r\n" + y1 +
         "\r\n 30\r\n0.0\r\n 11\r\n" + x2 + "\r\n 21\r\n" + y2 + "\r\n 31\r\n0.0\r\n";
}

std::string Drawing(const std::string& entities) {
  return "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n" + entities + "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
}

TEST(DxfReader, RectangleInAnyOrderAndDirectionClosesOnItsFirstPoint) {
  const auto outline =
      ReadDxfText(Drawing(Line("50", "60", "50", "0") + Line("0", "0", "0", "60") +
                          Line("0", "0", "50", "0") + Line("50", "60", "0", "60")));
  ASSERT_FALSE(outline.message);
  const Rows expected = {{"50", "60"}, {"50", "0"},  {"0", "0"},
                         {"0", "60"},  {"50", "60"}, {"", ""}};
  EXPECT_EQ(outline.rows, expected);
  EXPECT_EQ(OutlineClipText(outline.rows).substr(0, 12), "50\t60\r\n50\t0\r");
}

TEST(DxfReader, OpeningFollowsTheOutlineAfterAnEmptyRow) {
  const auto outline = ReadDxfText(Drawing(Line("0", "0", "12", "0") + Line("12", "0", "12", "12") +
                                           Line("12", "12", "0", "12") + Line("0", "12", "0", "0") +
                                           Line("4", "4", "6", "4") + Line("6", "6", "6", "4") +
                                           Line("6", "6", "4", "6") + Line("4", "6", "4", "4")));
  ASSERT_FALSE(outline.message);
  ASSERT_EQ(outline.rows.size(), 12u);
  EXPECT_EQ(outline.rows[5], (std::pair<std::string, std::string>{"", ""}));
  EXPECT_EQ(outline.rows[6], (std::pair<std::string, std::string>{"4", "4"}));
  EXPECT_EQ(outline.rows[8], (std::pair<std::string, std::string>{"6", "6"}));
  EXPECT_EQ(outline.rows[10], (std::pair<std::string, std::string>{"4", "4"}));
}

TEST(DxfReader, DrawingsWithoutClosedLinesAreRefused) {
  const std::string square =
      Line("0", "0", "12", "0") + Line("12", "0", "12", "12") + Line("12", "12", "0", "12");
  const std::string polyline =
      "  0\r\nLWPOLYLINE\r\n 90\r\n4\r\n 10\r\n0\r\n 20\r\n0\r\n 10\r\n5\r\n 20\r\n5\r\n";
  const std::vector<std::string> drawings = {
      Drawing(square + Line("0", "12", "0.0", "0")),  // "0" and "0.0" are different vertices
      Drawing(Line("0", "0", "12", "0")),
      Drawing(""),
      Drawing(polyline),
      Drawing(square) + "LINE\r\n 10\r\n0\r\n 20\r\n10\r\n 11",  // cut off inside an entity
  };
  for (const std::string& drawing : drawings) {
    const auto outline = ReadDxfText(drawing);
    ASSERT_TRUE(outline.message) << drawing;
    EXPECT_EQ(outline.message->title, "File Error");
    EXPECT_EQ(outline.message->text, " Incomplete geometry. Check DXF file");
    EXPECT_EQ(outline.message->icon, PromptIcon::Stop);
    EXPECT_TRUE(outline.rows.empty());
  }
}

TEST(DxfReader, TokensAreNotPairedWithTheirCodes) {
  // The value "10" under code 10 is read as a code: the next token becomes the x value.
  const auto values = LineValues(DxfTokens("LINE 10 10 20 5,11 7\t21 8 21 9"));
  EXPECT_EQ(values, (std::vector<std::string>{"10", "20", "5", "7", "8"}));
}

TEST(DxfReader, UnreadableFileNamesTheFile) {
  const std::pair<const char*, const char*> cases[] = {
      {"/nonexistent/outline.dxf", "/nonexistent/outline.dxf"},
      {"/nonexistent/\x1b[2J\tout.dxf", "/nonexistent/\\x1b[2J\\tout.dxf"},
  };
  for (const auto& [path, shown] : cases) {
    const auto outline = ReadDxfFile(path);
    ASSERT_TRUE(outline.message);
    EXPECT_EQ(outline.message->title, "Error");
    EXPECT_EQ(outline.message->text, std::string("Unable to Read DXF File : ") + shown);
  }
}

TEST(DxfReader, CancelledFileDialogSaysNothing) {
  ScriptedPrompt prompt;
  wb::Workbook grid;
  EXPECT_FALSE(ReadDXF(prompt, grid));
  ASSERT_EQ(prompt.fileRequests.size(), 1u);
  EXPECT_EQ(prompt.fileRequests[0].title, "Read DXF File");
  EXPECT_EQ(prompt.fileRequests[0].filter, "AutoCad DXF Files (*.DXF)|*.DXF");
  EXPECT_TRUE(prompt.messages.empty());
}

TEST(SortLines, StatusAndBothEndsPerLine) {
  std::vector<std::string> uneven = {"0", "0", "1"};
  EXPECT_EQ(SortLines(uneven, true), LineStatus::Uneven);
  EXPECT_EQ(uneven.size(), 3u);

  std::vector<std::string> open = {"0", "0", "1", "0", "1", "0", "1", "1"};
  EXPECT_EQ(SortLines(open, true), LineStatus::Open);

  std::vector<std::string> triangle = {"0", "0", "1", "0", "0", "1", "1", "0", "0", "1", "0", "0"};
  ASSERT_EQ(SortLines(triangle, false), LineStatus::Closed);
  EXPECT_EQ(triangle, (std::vector<std::string>{"0", "0", "0", "0", "1", "0", "1", "0", "0", "1",
                                                "0", "1", "0", "0", "", ""}));
}

}  // namespace
}  // namespace gustline::geometry
