// A field table loads its values from the project's named cells and saves them back.
#include <gtest/gtest.h>

#include <string>

#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "ui/rules/FieldCells.h"

namespace gustline::rules {
namespace {

struct Sample {
  std::string number;
  std::string percent;
  std::string words;
  bool ticked = false;
  int index = 0;
  std::string kept = "kept";
};

constexpr FormField<Sample> kSampleFields[] = {
    {.control = "Text1", .member = &Sample::number, .cell = "Number", .format = "0.00"},
    {.control = "Text2", .member = &Sample::percent, .cell = "Fraction", .perCell = 100},
    {.control = "Text3", .member = &Sample::words, .cell = "Words", .format = "@"},
    {.control = "Check1", .member = &Sample::ticked, .cell = "Ticked"},
    {.control = "Option1", .member = &Sample::index, .cell = "Index"},
    {.control = "Text4", .member = &Sample::kept},
};

// A book whose names Number, Fraction, Words, Ticked and Index are A1 to A5 of Sheet1.
struct SampleBook {
  SampleBook() {
    int row = 1;
    for (const char* name : {"Number", "Fraction", "Words", "Ticked", "Index"})
      book.SetDefinedName(name, "Sheet1!$A$" + std::to_string(row++));
  }
  wb::Workbook book;
};

TEST(FieldCellsTest, LoadShowsEachCellInItsFieldsFormatAndUnit) {
  struct Case {
    double number, fraction;
    const char* words;
    double ticked, index;
    Sample shown;
  };
  const Case cases[] = {
      {12.5, 0.025, "North wall", 1, 3, {"12.50", "2.5", "North wall", true, 3}},
      {0, 0.0001, "", 2, -1, {"0.00", "0.01", "", false, -1}},
  };
  for (const Case& c : cases) {
    SampleBook sample;
    wb::Workbook& book = sample.book;
    wb::WriteNamedNumber(book, "Number", c.number);
    wb::WriteNamedNumber(book, "Fraction", c.fraction);
    wb::WriteNamedText(book, "Words", c.words);
    wb::WriteNamedNumber(book, "Ticked", c.ticked);
    wb::WriteNamedNumber(book, "Index", c.index);
    Sample v;
    LoadFields(book, kSampleFields, v);
    EXPECT_EQ(v.number, c.shown.number);
    EXPECT_EQ(v.percent, c.shown.percent);
    EXPECT_EQ(v.words, c.shown.words);
    EXPECT_EQ(v.ticked, c.shown.ticked) << c.ticked;
    EXPECT_EQ(v.index, c.shown.index);
    EXPECT_EQ(v.kept, "kept");  // no cell: left to the dialog's own Load
  }
}

TEST(FieldCellsTest, SaveWritesNumbersInTheCellsUnitAndTextsAsTheyStand) {
  struct Case {
    Sample values;
    double number, fraction;
    const char* words;
    double ticked, index;
  };
  const Case cases[] = {
      {{"7.25", "5", "12", true, 2}, 7.25, 0.05, "12", 1, 2},
      {{"none", "", " East ", false, 0}, 0, 0, " East ", 0, 0},
  };
  for (const Case& c : cases) {
    SampleBook sample;
    wb::Workbook& book = sample.book;
    SaveFields(book, kSampleFields, c.values);
    EXPECT_DOUBLE_EQ(wb::ReadNamedNumber(book, "Number"), c.number);
    EXPECT_DOUBLE_EQ(wb::ReadNamedNumber(book, "Fraction"), c.fraction);
    EXPECT_EQ(book.CellText(3, 1), c.words);
    EXPECT_EQ(book.CellNumber(3, 1), 0);  // a text, even one that reads as a number
    EXPECT_EQ(wb::ReadNamedNumber(book, "Ticked"), c.ticked);
    EXPECT_EQ(wb::ReadNamedNumber(book, "Index"), c.index);
  }
}

}  // namespace
}  // namespace gustline::rules
