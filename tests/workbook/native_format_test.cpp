#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

std::string Written(Workbook& book) {
  std::ostringstream out;
  WriteNative(book, out);
  return out.str();
}

void Read(const std::string& text, Workbook& book) {
  std::istringstream in(text);
  ReadNative(in, book);
}

int ReadError(const std::string& text, Workbook& book) {
  try {
    Read(text, book);
  } catch (const FacilityError& error) {
    return error.Number();
  }
  return 0;
}

std::string ReadMessage(const std::string& text, Workbook& book) {
  try {
    Read(text, book);
  } catch (const FacilityError& error) {
    return error.what();
  }
  return {};
}

CellStyle BorderedStyle() {
  CellStyle style;
  style.numberFormat = "0.00 \"psf\"";
  style.font = {"Times New Roman", 12.5, true, true, true, 0x1F2E3D};
  style.hAlign = HAlign::Right;
  style.vAlign = VAlign::Top;
  style.wrap = true;
  style.left = {1, 0xFF0000};
  style.right = {2, 0x00FF00};
  style.top = {5, 0x0000FF};
  style.bottom = {6, 0x123456};
  style.fill = 0xC0C0C0;
  return style;
}

// A book with every kind of content that a file must keep; its numbers keep every bit.
void BuildRichBook(Workbook& book) {
  book.SetBookName("Figure66A");
  book.SetTitle("Gustline");
  book.SetAutoRecalc(false);
  book.SetIteration(true, 50, 0.0005);
  book.AddSheet("Page 1");
  book.AddSheet("Sheet3");

  book.SetActiveSheet(1);
  book.SetCellText(1, 1, "Height");
  book.SetCellNumber(1, 2, 60);
  book.SetCellNumber(2, 2, 17.428542112355654);
  book.SetCellNumber(3, 2, -0.0);
  book.SetCellNumber(4, 2, 5e-324);
  const double inf = std::numeric_limits<double>::infinity();
  const double numbers[] = {0.1, 1.0 / 3, std::numeric_limits<double>::max(), -123456789012345678.0,
                            inf, -inf};
  for (int i = 0; i < 6; ++i) book.GetSheet(1).At(i + 1, 6).value = Value::Number(numbers[i]);
  book.SetCellText(5, 1, "say \"psf\"\\ \t tab\nline\r");
  book.SetCellText(5, 2, std::string("\0\x01\xff\xc3", 4));
  book.SetCellText(5, 3, "\xce\xa8 = 90 := s1 -> empty");
  book.SetCellText(6, 1, "=not a formula");
  book.SetCellText(6, 2, "90");
  book.SetCellEntry(7, 1, "TRUE");
  book.SetCellEntry(7, 2, "FALSE");
  const char* errors[] = {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A"};
  for (int i = 0; i < 7; ++i) book.SetCellEntry(8, i + 1, errors[i]);
  book.SetCellFormula(9, 1, "B1*2");
  book.GetSheet(1).Find(9, 1)->value = Value::Number(120);
  book.SetCellFormula(9, 2, "Sheet3!A1+1");
  book.GetSheet(1).Find(9, 2)->value = Value::Number(3.5);
  book.SetCellFormula(9, 3, "IF(A1=\"\",\"none\",A1&\" ft\")");
  book.GetSheet(1).Find(9, 3)->value = Value::Text("Height ft");
  book.SetCellStyle(1, 2, BorderedStyle());
  book.SetCellStyle(12, 4, BorderedStyle());  // a blank that only carries a style
  book.SetColumnWidth(1, 1, 20.5);
  book.SetColumnWidth(3, 4, 4.25);
  book.HideRows(5, 7, true);
  book.SetRowHidden(12, true);
  Sheet& first = book.GetSheet(1);
  first.selection = {2, 2, 9, 3};
  first.active = {9, 3};
  first.topRow = 4;
  first.leftCol = 2;
  first.maxRow = 80;
  first.selected = true;

  book.SetActiveSheet(2);
  book.SetCellFormula(2, 4, "[WindData]Sheet1!Height");
  book.GetSheet(2).Find(2, 4)->value = Value::Number(60);
  book.SetCellFormula(3, 4, "[WindData]Sheet1!Company");
  book.GetSheet(2).Find(3, 4)->value = Value::Text("Acme Engineering");
  CellStyle percent;
  percent.numberFormat = "0.00%";
  book.SetCellStyle(3, 4, percent);
  Sheet& page = book.GetSheet(2);
  page.SetDefaultColumnWidth(10);
  PrintSetup& print = page.Print();
  print = {"&F \"page\" &P",
           "Gustline\tfooter",
           0.5,
           0.6,
           0.7,
           0.8,
           true,
           true,
           true,
           true,
           true,
           true,
           true,
           85,
           true,
           1,
           3,
           "$A$1:$H$60"};
  page.Display() = {false, false, false, false, false, false, false, false, false};
  page.Objects().push_back(
      {1, 10, "Picture 1", 1.5, 2.5, 300, 144.25, "", 0, true, "figure6-10.bmp"});
  page.Objects().push_back({2, 3, "Check Box 2", 10, 20, 30, 40, "$B$7", 1, false, "Use 6.5.15"});

  book.SetActiveSheet(3);
  book.SetCellNumber(1, 1, 2.5);

  book.SetDefinedName("Height", "Sheet1!$B$1");
  book.SetDefinedName("U_Str_Force", "Sheet3!$A$1");
  book.SetDefinedName("Table66RoofType", "'Page 1'!$D$2");
  book.SetActiveSheet(2);
}

struct CellSnapshot {
  int row, col;
  Value value;
  std::string formula;
  CellStyle style;
  bool operator==(const CellSnapshot&) const = default;
};

std::vector<CellSnapshot> CellsOf(Workbook& book, int sheetNumber) {
  std::vector<CellSnapshot> cells;
  book.GetSheet(sheetNumber).ForEachCell([&](int row, int col, const Cell& cell) {
    const CellStyle& style = book.Styles().Get(cell.style);
    if (!cell.HasContent() && style == CellStyle{}) return;
    const std::string formula =
        cell.IsFormula() ? FormulaText(*cell.formula, {&book, sheetNumber - 1, {row, col}}) : "";
    cells.push_back({row, col, cell.value, formula, style});
  });
  return cells;
}

void ExpectSameBook(Workbook& expected, Workbook& actual) {
  EXPECT_EQ(actual.Title(), expected.Title());
  EXPECT_EQ(actual.AutoRecalc(), expected.AutoRecalc());
  EXPECT_EQ(actual.IterationOn(), expected.IterationOn());
  EXPECT_EQ(actual.MaxIterations(), expected.MaxIterations());
  EXPECT_EQ(actual.MaxChange(), expected.MaxChange());
  EXPECT_EQ(actual.ActiveSheet(), expected.ActiveSheet());
  ASSERT_EQ(actual.NameCount(), expected.NameCount());
  for (int i = 1; i <= expected.NameCount(); ++i) {
    EXPECT_EQ(actual.NameAt(i), expected.NameAt(i));
    EXPECT_EQ(actual.DefinedName(actual.NameAt(i)), expected.DefinedName(expected.NameAt(i)));
  }
  ASSERT_EQ(actual.SheetCount(), expected.SheetCount());
  for (int s = 1; s <= expected.SheetCount(); ++s) {
    const Sheet& a = actual.GetSheet(s);
    const Sheet& e = expected.GetSheet(s);
    EXPECT_EQ(a.Name(), e.Name());
    EXPECT_EQ(a.DefaultColumnWidth(), e.DefaultColumnWidth());
    EXPECT_EQ(a.ColumnWidths(), e.ColumnWidths());
    EXPECT_EQ(a.HiddenRows(), e.HiddenRows());
    EXPECT_EQ(a.Print(), e.Print());
    EXPECT_EQ(a.Display(), e.Display());
    EXPECT_EQ(a.Objects(), e.Objects());
    EXPECT_EQ(a.selection, e.selection);
    EXPECT_EQ(a.active, e.active);
    EXPECT_EQ(std::tie(a.topRow, a.leftCol, a.maxRow, a.selected),
              std::tie(e.topRow, e.leftCol, e.maxRow, e.selected));
    EXPECT_EQ(CellsOf(actual, s), CellsOf(expected, s)) << "sheet " << s;
  }
}

TEST(NativeFormat, WritingAndReadingGivesTheSameBookAndTheSameBytes) {
  Workbook original("Scratch");
  BuildRichBook(original);
  const std::string text = Written(original);

  Workbook copy("Figure66A");
  copy.SetCellText(40, 40, "old content");
  copy.SetDefinedName("Stale", "Sheet1!$A$1");
  Read(text, copy);
  ExpectSameBook(original, copy);
  EXPECT_EQ(Written(copy), text);
  EXPECT_TRUE(std::signbit(copy.GetSheet(1).Find(3, 2)->value.AsNumber()));  // -0.0

  // A link to a book that is not open keeps its cached result.
  copy.Recalc();
  EXPECT_EQ(copy.GetSheet(2).Find(2, 4)->value, Value::Number(60));
  EXPECT_EQ(copy.GetSheet(2).Find(3, 4)->value, Value::Text("Acme Engineering"));
  EXPECT_EQ(copy.GetSheet(1).Find(9, 2)->value, Value::Number(3.5));  // Sheet3!A1+1
}

// Links from books read later find the book by its own name, whatever name the file holds:
// a project written as "Other" still answers to [WindData].
TEST(NativeFormat, AReadKeepsTheBooksOwnName) {
  struct Case {
    const char* reader;
    const char* written;
  };
  for (const Case c : {Case{"WindData", "Other"}, Case{"WindData", "ServerSS"},
                       Case{"ServerSS", "Figure66A"}, Case{"WindData", "windDATA"}}) {
    std::string text;
    {
      Workbook source(c.written);
      source.SetCellNumber(1, 1, 150);
      text = Written(source);
    }
    Workbook reader(c.reader);
    Read(text, reader);
    EXPECT_EQ(reader.BookName(), c.reader) << c.written;
    Workbook report("Report");
    report.SetCellFormula(1, 1, "[" + std::string(c.reader) + "]Sheet1!A1");
    EXPECT_EQ(report.CellValue(1, 1), Value::Number(150)) << c.written;
  }
}

// A column that one formula fills reads back as one formula, each row's value its own; the
// book read keeps the name slots that the links of other books were bound to before.
TEST(NativeFormat, AFilledColumnSharesOneFormulaAndLinksStayBound) {
  Workbook source("Source");
  for (int row = 1; row <= 4; ++row) {
    source.SetCellNumber(row, 1, row);
    source.SetCellFormula(row, 2, "A" + std::to_string(row) + "*2");
  }
  source.SetCellFormula(5, 2, "A4*3");
  source.SetDefinedName("Top", "Sheet1!$B$4");
  const std::string text = Written(source);

  Workbook reader("Project");
  reader.SetDefinedName("Other", "Sheet1!$A$1");
  Workbook report("Report");
  report.SetCellFormula(1, 1, "[Project]Sheet1!Top");
  Read(text, reader);
  const auto formulaAt = [&reader](int row) { return reader.GetSheet(1).Find(row, 2)->formula; };
  for (int row = 2; row <= 4; ++row) EXPECT_EQ(formulaAt(row), formulaAt(1)) << row;
  EXPECT_NE(formulaAt(5), formulaAt(4));
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(reader.CellNumber(row, 2), 2 * row);
  EXPECT_EQ(reader.CellNumber(5, 2), 12);
  EXPECT_EQ(report.CellValue(1, 1), Value::Number(8));
}

TEST(NativeFormat, CellLinesReadAtAGlance) {
  Workbook book("Figure66A");
  book.SetAutoRecalc(false);
  book.SetCellNumber(17, 2, 90);
  book.SetCellText(3, 1, "Exposure C");
  book.SetCellFormula(15, 4, "[WindData]Sheet1!Height");
  book.GetSheet(1).Find(15, 4)->value = Value::Number(60);
  CellStyle twoDecimals;
  twoDecimals.numberFormat = "0.00";
  book.SetCellStyle(17, 2, twoDecimals);

  const std::string text = Written(book);
  EXPECT_EQ(text.rfind("gustline-workbook 1\n", 0), 0u);
  EXPECT_NE(text.find("\nA3 = \"Exposure C\"\nD15 60 := [WindData]Sheet1!Height\nB17 s1 = 90\n"),
            std::string::npos)
      << text;
  EXPECT_EQ(text.substr(text.size() - 4), "end\n");
}

TEST(NativeFormat, OnlyTheStylesThatCellsUseAreWrittenInOrderOfUse) {
  CellStyle a, b, unused;
  a.numberFormat = "0.00";
  b.numberFormat = "#,##0";
  unused.numberFormat = "0%";
  Workbook one("Book"), two("Book");
  one.Styles().Intern(unused);
  two.Styles().Intern(b);
  two.Styles().Intern(a);
  for (Workbook* book : {&one, &two}) {
    book->SetCellStyle(1, 1, a);
    book->SetCellStyle(2, 1, b);
    book->SetCellStyle(3, 1, a);
  }
  const std::string text = Written(one);
  EXPECT_EQ(text, Written(two));
  EXPECT_EQ(text.find("0%"), std::string::npos);
  EXPECT_NE(text.find("\nA1 s1\nA2 s2\nA3 s1\n"), std::string::npos) << text;
}

// A text of any bytes comes back as it was, in a cell, a title, a header and an object.
class AnyText : public ::testing::TestWithParam<std::string> {};

TEST_P(AnyText, RoundTrips) {
  Workbook book("Texts");
  book.SetTitle(GetParam());
  book.GetSheet(1).At(1, 1).value = Value::Text(GetParam());
  book.GetSheet(1).Print().header = GetParam();
  book.GetSheet(1).Objects().push_back({1, 10, GetParam(), 0, 0, 1, 1, "", 0, false, GetParam()});
  Workbook copy("Copy");
  Read(Written(book), copy);
  EXPECT_EQ(copy.Title(), GetParam());
  EXPECT_EQ(copy.GetSheet(1).Find(1, 1)->value, Value::Text(GetParam()));
  EXPECT_EQ(copy.GetSheet(1).Print().header, GetParam());
  EXPECT_EQ(copy.GetSheet(1).Objects(), book.GetSheet(1).Objects());
}

INSTANTIATE_TEST_SUITE_P(
    NativeFormat, AnyText,
    ::testing::Values(std::string(), std::string("a \"quoted\" word"), std::string("back\\slash\\"),
                      std::string("tab\tnew\nline\rend"), std::string("\0\x01\x1f\x7f", 4),
                      std::string("\xff\xfe\xc3(\xe2\x82"), std::string("\xce\xa8 \xe2\x82\xac"),
                      std::string("end"), std::string(" := "), std::string("=B1*2"),
                      std::string("\\x41")));

// A small good file and the ways it may be broken.
const std::string kGoodFile =
    "gustline-workbook 1\n"
    "book \"WindData\"\n"
    "title \"Gustline\"\n"
    "calc auto=0 iteration=0 count=100 change=0.001\n"
    "active-sheet 1\n"
    "name \"Height\" := Sheet1!$B$1\n"
    "style 1 format=\"0.00\"\n"
    "sheet \"Sheet1\"\n"
    "default-width 8.43\n"
    "column B 12\n"
    "hidden-rows 3-4\n"
    "view selection=$A$1 active=A1 top=1 left=1 maxrow=16384 selected=0\n"
    "A1 = \"Height\"\n"
    "B1 s1 = 60\n"
    "B2 120 := B1*2\n"
    "end\n";

struct Damage {
  const char* what;
  const char* from;
  const char* to;
};

class DamagedFile : public ::testing::TestWithParam<Damage> {};

TEST_P(DamagedFile, IsRefusedAndTheBookStaysAsItWas) {
  std::string text = kGoodFile;
  const std::size_t at = text.find(GetParam().from);
  ASSERT_NE(at, std::string::npos) << GetParam().what;
  text.replace(at, std::string_view(GetParam().from).size(), GetParam().to);

  Workbook book("Project");
  BuildRichBook(book);
  const std::string before = Written(book);
  EXPECT_EQ(ReadError(text, book), errc::kFileCorrupt) << GetParam().what;
  EXPECT_EQ(Written(book), before) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    NativeFormat, DamagedFile,
    ::testing::Values(Damage{"other magic", "gustline-workbook 1", "gustline-workbench 1"},
                      Damage{"newer version", "gustline-workbook 1", "gustline-workbook 2"},
                      Damage{"unknown line", "active-sheet 1\n", "colour 1\n"},
                      Damage{"unknown field", "auto=0", "automatic=0"},
                      Damage{"field twice", "auto=0", "auto=0 auto=1"},
                      Damage{"no active sheet", "active-sheet 1", "active-sheet 2"},
                      Damage{"name twice", "name \"Height\" := Sheet1!$B$1\n",
                             "name \"Height\" := Sheet1!$B$1\nname \"HEIGHT\" := Sheet1!$B$2\n"},
                      Damage{"name without formula", ":= Sheet1!$B$1", ""},
                      Damage{"style out of order", "style 1", "style 2"},
                      Damage{"bad colour", "format=\"0.00\"", "fill=GG0000"},
                      Damage{"sheet twice", "end\n", "sheet \"SHEET1\"\nend\n"},
                      Damage{"sheet name the book refuses", "sheet \"Sheet1\"",
                             "sheet \"Sheet[1]\""},
                      Damage{"sheet lines without a sheet", "sheet \"Sheet1\"\n", ""},
                      Damage{"cells out of order", "B2 120", "A1 120"},
                      Damage{"row beyond the sheet", "B2 120", "B16385 120"},
                      Damage{"column beyond the sheet", "B2 120", "IW2 120"},
                      Damage{"style not in the table", "B1 s1", "B1 s2"},
                      Damage{"formula that does not parse", "B1*2", "B1*(2"},
                      Damage{"empty formula", ":= B1*2", ":="},
                      Damage{"unclosed quote", "\"Height\"\nB1", "\"Height\nB1"},
                      Damage{"bad escape", "\"Height\"\nB1", "\"Hei\\ght\"\nB1"},
                      Damage{"bad value", "= 60", "= 6O"},
                      Damage{"unknown error value", "= 60", "= #OOPS!"},
                      Damage{"empty constant", "= 60", "= empty"},
                      Damage{"hidden rows out of order", "hidden-rows 3-4", "hidden-rows 4 3"},
                      Damage{"width out of range", "column B 12", "column B nan"},
                      Damage{"bad view range", "selection=$A$1", "selection=$A$1:$A$16385"},
                      Damage{"text after the end", "end\n", "end\nA1 = 1\n"},
                      Damage{"no end", "end\n", ""}, Damage{"no final newline", "end\n", "end"}));

// A damaged file is quoted with its control bytes, and bytes that are no UTF-8, escaped, so
// that the message cannot drive the terminal that shows it.
TEST(NativeFormat, MessagesQuoteTheFileWithControlBytesEscaped) {
  struct Case {
    const char* from;
    const char* to;
    const char* quoted;
  };
  const Case cases[] = {
      {"active-sheet 1\n", "\x1b[2Jcolour\xc3\xa9\xff 1\n",
       "line 5: an unknown line '\\x1b[2Jcolour\xc3\xa9\\xff'"},
      {"= 60", "= 6\a\xc2\x9b\x7f", "a bad value 6\\x07\\xc2\\x9b\\x7f"},
      {"name \"Height\"", "name \"H\\teight\" := A1\nname \"h\\teight\"",
       "the name h\\teight twice"},
      {"sheet \"Sheet1\"", "sheet \"Sheet[\\r\\n]\"", "\"Sheet[\\r\\n]\" is no sheet name"},
  };
  for (const Case& c : cases) {
    std::string text = kGoodFile;
    text.replace(text.find(c.from), std::string_view(c.from).size(), c.to);
    Workbook book("Project");
    const std::string message = ReadMessage(text, book);
    EXPECT_NE(message.find(c.quoted), std::string::npos) << message;
    EXPECT_TRUE(std::none_of(message.begin(), message.end(), [](unsigned char byte) {
      return byte < 0x20 || byte == 0x7f;
    })) << message;
  }
}

// Every name is checked against the others without regard to case; a file of the most names
// reads in well under a second, where comparing every pair took half a minute.
TEST(NativeFormat, TheMostNamesReadInLinearTime) {
  std::string names;
  for (std::size_t i = 0; i < kMaxNativeNames; ++i)
    names += "name \"Name" + std::to_string(i) + "\" := Sheet1!$B$1\n";
  const std::string_view height = "name \"Height\" := Sheet1!$B$1\n";
  std::string text = kGoodFile;
  text.replace(text.find(height), height.size(), names);
  Workbook book("Project");
  const std::clock_t start = std::clock();
  Read(text, book);
  EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 10.0);
  EXPECT_EQ(book.NameCount(), static_cast<int>(kMaxNativeNames));

  text.replace(text.find("Name65535"), 9, "NAME7");
  EXPECT_NE(ReadMessage(text, book).find("line 65541: the name NAME7 twice"), std::string::npos);
}

TEST(NativeFormat, EveryTruncationIsRefusedAndTheBookStaysAsItWas) {
  Workbook source("Scratch");
  BuildRichBook(source);
  const std::string text = Written(source);

  Workbook book("Project");
  book.SetCellText(2, 2, "kept");
  const std::string before = Written(book);
  for (std::size_t cut = 0; cut < text.size(); ++cut) {
    ASSERT_EQ(ReadError(text.substr(0, cut), book), errc::kFileCorrupt) << "cut at " << cut;
  }
  EXPECT_EQ(Written(book), before);
}

TEST(NativeFormat, DamagedBytesAreRefusedOrReadWhole) {
  Workbook source("Scratch");
  BuildRichBook(source);
  const std::string text = Written(source);
  std::mt19937 random(7);
  const char replacements[] = {'\0', '\n', '"', '\\', ' ', '=', '9', 'x', '\xff', ':'};
  Workbook book("Project");
  book.SetCellText(2, 2, "kept");
  const std::string before = Written(book);
  for (int trial = 0; trial < 400; ++trial) {
    std::string damaged = text;
    damaged[random() % damaged.size()] = replacements[random() % std::size(replacements)];
    const int error = ReadError(damaged, book);
    if (error != 0) {
      ASSERT_EQ(error, errc::kFileCorrupt);
      ASSERT_EQ(Written(book), before);
    } else {
      const std::string again = Written(book);
      Workbook copy("Project");
      ASSERT_EQ(ReadError(again, copy), 0) << damaged;
      ASSERT_EQ(Written(copy), again);
      Read(before, book);
    }
  }
}

class WorkbookFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ =
        std::filesystem::temp_directory_path() /
        ("gustline-native-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
         "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

  static std::string Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

  static int ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const FacilityError& error) {
      return error.Number();
    }
    return 0;
  }

  std::filesystem::path folder_;
};

TEST_F(WorkbookFileTest, SavesAndOpensAProjectAndAFailedSaveLeavesTheOldFileAsItWas) {
  Workbook book("WindData");
  BuildRichBook(book);
  const std::string path = PathOf("PROJECT1.GLN");
  book.WriteWorkbook(path, FileType::Native);
  EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));
  Workbook copy("WindData");
  EXPECT_EQ(copy.ReadWorkbook(path), FileType::Native);
  ExpectSameBook(book, copy);
  const std::string old = Contents(path);

  book.SetCellNumber(1, 1, 100);
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);  // a read-only project
  EXPECT_EQ(ErrorOf([&] { book.WriteWorkbook(path, FileType::Native); }), errc::kFileWrite);
  EXPECT_EQ(Contents(path), old);
  EXPECT_EQ(ErrorOf([&] { book.WriteWorkbook(path, FileType::Excel5); }), errc::kFileWrite);
  EXPECT_EQ(Contents(path), old);
  EXPECT_EQ(ErrorOf([&] { book.WriteWorkbook(PathOf("missing/PROJECT1.GLN"), FileType::Native); }),
            errc::kFileWrite);
}

TEST_F(WorkbookFileTest, RefusesAMissingFileAndAFileOfAnotherKind) {
  Workbook book("WindData");
  book.SetCellNumber(1, 1, 90);
  const std::string before = Written(book);
  EXPECT_EQ(ErrorOf([&] { book.ReadWorkbook(PathOf("none.GLN")); }), errc::kFileOpen);
  std::ofstream(PathOf("Properties.txt"), std::ios::binary) << "Height\t60\r\nWindSpeed\t90\r\n";
  EXPECT_EQ(ErrorOf([&] { book.ReadWorkbook(PathOf("Properties.txt")); }), errc::kFileCorrupt);
  std::ofstream(PathOf("empty.GLN"), std::ios::binary).flush();
  EXPECT_EQ(ErrorOf([&] { book.ReadWorkbook(PathOf("empty.GLN")); }), errc::kFileCorrupt);
  EXPECT_EQ(Written(book), before);
}

}  // namespace
}  // namespace gustline::wb
