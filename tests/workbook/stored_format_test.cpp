#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "StoredBytes.h"
#include "TempFolder.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/io/StoredFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

using namespace stored;  // NOLINT(google-build-using-namespace): the byte builders

void Read(const std::string& bytes, Workbook& book) {
  std::istringstream in(bytes);
  ReadStored(in, book);
}

std::string Shown(const Value& value) {
  switch (value.GetKind()) {
    case Value::Kind::Number:
      return FormatShortest(value.AsNumber());
    case Value::Kind::Boolean:
      return value.AsBoolean() ? "TRUE" : "FALSE";
    case Value::Kind::Error:
      return std::string(ErrorText(value.AsError()));
    default:
      return value.AsText();
  }
}

// The text of the error that reading raises, or "" when it reads.
std::string ReadFailure(const std::string& bytes) {
  Workbook book("WindData");
  try {
    Read(bytes, book);
  } catch (const FacilityError& error) {
    EXPECT_EQ(error.Number(), errc::kFileCorrupt);
    return error.what();
  }
  return "";
}

TEST(StoredFormat, ReadsEveryKindOfCell) {
  const std::string cells =
      Number(0, 0, 60) + Fixed(0x7E, Head(1, 0, 1) + U32((1234u << 2) | 3)) +  // 12.34
      Fixed(0x7E, Head(2, 0) + U32(0x40240000)) +                              // 10.0
      Text(3, 0, "Exp C") + Fixed(0x05, Head(4, 0) + Byte(1) + Byte(0)) +
      Fixed(0x05, Head(5, 0) + Byte(0x07) + Byte(1)) + Fixed(0x01, Head(6, 0, 1)) +
      Sized(0xBD, U16(7) + U16(0) + U16(0) + U32((5u << 2) | 2) + U16(1) +
                      U32(static_cast<std::uint32_t>(-3 << 2) | 2) + U16(1)) +
      Sized(0xBE, U16(8) + U16(2) + U16(1) + U16(1) + U16(3)) + Text(9, 0, "caf\xE9");
  Workbook book("WindData");
  Read(OneSheet(cells), book);
  const std::vector<std::pair<int, std::string>> expected = {
      {1, "60"}, {2, "12.34"}, {3, "10"}, {4, "Exp C"}, {5, "TRUE"}, {6, "#DIV/0!"}, {10, "café"}};
  for (const auto& [row, text] : expected) EXPECT_EQ(Shown(book.CellValue(row, 1)), text) << row;
  EXPECT_EQ(book.CellNumber(8, 1), 5);
  EXPECT_EQ(book.CellNumber(8, 2), -3);
  EXPECT_EQ(book.Styles().Get(book.GetSheet(1).At(7, 1).style).numberFormat, "0.00");
  EXPECT_EQ(book.Styles().Get(book.GetSheet(1).At(9, 4).style).numberFormat, "0.00");
  EXPECT_TRUE(book.CellValue(9, 3).IsEmpty());
}

// Each token stream becomes the formula our parser makes of the text.
TEST(StoredFormat, FormulaTokensReadAsOurText) {
  const struct {
    std::string tokens;
    std::string text;
  } cases[] = {
      {Ref(0, 0) + Int(2) + Byte(0x05), "A1*2"},
      {Ref(0, 0, false) + Num(0.5) + Byte(0x03), "$A$1+0.5"},
      {Ref(0, 0) + Int(1) + Byte(0x03) + Byte(0x15) + Int(3) + Byte(0x05), "(A1+1)*3"},
      {Ref(0, 0) + Int(1) + Byte(0x03) + Int(3) + Byte(0x05), "(A1+1)*3"},  // no paren token
      {Int(2) + Int(3) + Int(2) + Byte(0x07) + Byte(0x07), "2^(3^2)"},
      {Ref(0, 0) + Byte(0x13) + Int(2) + Byte(0x07), "-A1^2"},
      {Int(5) + Byte(0x14), "5%"},
      {Str("a\"b") + Ref(0, 0) + Byte(0x08), "\"a\"\"b\"&A1"},
      {Ref(0, 0) + Int(50) + Byte(0x0D) + Int(1) + Int(2) + Call(1, 3), "IF(A1>50,1,2)"},
      {Ref(0, 0) + Int(1) + Byte(0x0E) + Byte(0x1D) + Byte(1) + Call(36, 2), "AND(A1<>1,TRUE)"},
      {AreaToken(0, 0, 3, 1) + Byte(0x19) + Byte(0x10) + U16(0), "SUM($A$1:$B$4)"},
      {Int(2) + Byte(0x19) + Byte(0x04) + U16(2) + Zeros(6) + Int(7) + Int(8) + Call(100, 3),
       "CHOOSE(2,7,8)"},
      {Ref(0, 0) + AreaToken(0, 0, 3, 0) + Byte(0x16) + Call(64, 3), "MATCH(A1,$A$1:$A$4,)"},
      {Byte(0x1C) + Byte(0x2A), "#N/A"},
      {Byte(0x21) + U16(74), "NOW()"},
      {Ref3d(-1, 1, 4, 2), "'Page 2'!C5"},
      {Ref3d(-2, 0, 4, 2), "[Book1]Sheet9!C5"},
      {LinkedNameToken(-3, 1), "[WindData]Sheet1!Height"},
      {NameToken(1), "Speed"},
      // Lost 3-D references keep the length of the reference; the token after them reads.
      {Byte(0x3C) + Zeros(17) + Int(1) + Byte(0x03), "#REF!+1"},
      {Byte(0x3D) + Zeros(20) + Int(1) + Byte(0x03), "#REF!+1"},
  };
  const std::string links = Link("[Self]Sheet1") + Link("[Book1]Sheet9") +
                            Link("[WindData]Sheet1") + LinkedName("Height");
  for (const auto& c : cases) {
    const std::string globals = Link("[Self]Sheet1") + NameDef("Speed", Ref3d(-1, 0, 0, 0));
    const std::string bytes =
        Book(globals,
             {{"Sheet1", links + Number(0, 0, 60) + FormulaCell(1, 0, c.tokens)}, {"Page 2", ""}});
    Workbook book("Self");
    Read(bytes, book);
    EXPECT_EQ(book.CellFormula(2, 1), c.text);
  }
}

TEST(StoredFormat, ReadsCachedResultsOfAManualBook) {
  const std::string cells = Fixed(0x0D, U16(0)) + FormulaCell(0, 0, Int(1), F64(42)) +
                            FormulaCell(1, 0, Str("x"), Cached(0)) + Sized(0x07, U16(3) + "old") +
                            FormulaCell(2, 0, Int(1), Cached(1, 1)) +
                            FormulaCell(3, 0, Int(1), Cached(2, 0x24)) +
                            FormulaCell(4, 0, Int(1), Cached(3));
  Workbook book("WindData");
  Read(OneSheet(cells), book);
  EXPECT_FALSE(book.AutoRecalc());
  EXPECT_EQ(Shown(book.CellValue(1, 1)), "42");
  EXPECT_EQ(Shown(book.CellValue(2, 1)), "old");
  EXPECT_EQ(Shown(book.CellValue(3, 1)), "TRUE");
  EXPECT_EQ(Shown(book.CellValue(4, 1)), "#NUM!");
  EXPECT_EQ(Shown(book.CellValue(5, 1)), "");
}

TEST(StoredFormat, ReadsNamesSheetsLayoutAndPrintSetup) {
  const std::string globals = Link("[WindData]Sheet1") + NameDef("Height", Ref3d(-1, 1, 0, 1)) +
                              NameDef(Byte(6) + Byte(0),
                                      Byte(0x3B) + U16(0xFFFF) + Zeros(8) + U16(1) + U16(1) +
                                          U16(0) + U16(9) + Byte(0) + Byte(3),
                                      2, 0x20) +
                              Sized(0x3D, Zeros(10) + U16(1) + Zeros(6));
  const std::string second =
      Sized(0x14, Short("Head")) + Fixed(0x26, F64(0.5)) + Fixed(0x2B, U16(1)) +
      Fixed(0x83, U16(1)) + Sized(0xA1, U16(1) + U16(80) + U16(1) + U16(1) + U16(2) + U16(0)) +
      Fixed(0x7D, U16(1) + U16(2) + U16(12 * 256) + U16(0) + U16(0) + U16(0)) +
      Fixed(0x08, U16(3) + U16(0) + U16(2) + U16(255) + U16(0) + U16(0) + U16(0x20) + U16(0)) +
      Number(0, 1, 90) +
      Sized(0x1D,
            Byte(3) + U16(1) + U16(1) + U16(0) + U16(1) + U16(1) + U16(2) + Byte(1) + Byte(1)) +
      Sized(0x3E, U16(0x0602) + U16(2) + U16(0) + U32(0)) + Fixed(0x99, U16(10 * 256)) +
      Sized(0xF2, std::string(722, 'x'));  // a long private record, passed over whole
  Workbook book("WindData");
  Read(Book(globals, {{"Sheet1", ""}, {"Loads", second}}), book);
  EXPECT_EQ(book.ActiveSheet(), 2);
  EXPECT_EQ(book.DefinedName("Height"), "Loads!B1");
  const Sheet& sheet = book.GetSheet(2);
  EXPECT_EQ(sheet.Print().printArea, "Loads!$A$1:$D$10");
  EXPECT_EQ(sheet.Print().header, "Head");
  EXPECT_EQ(sheet.Print().leftMargin, 0.5);
  EXPECT_TRUE(sheet.Print().gridLines && sheet.Print().hCenter && sheet.Print().landscape);
  EXPECT_EQ(sheet.Print().scale, 80);
  EXPECT_EQ(sheet.Print().pagesTall, 2);
  EXPECT_EQ(sheet.ColumnWidths().at(3), 12);
  EXPECT_EQ(sheet.DefaultColumnWidth(), 10);
  EXPECT_EQ(sheet.HiddenRows(), std::vector<int>{4});
  EXPECT_EQ(sheet.selection, (Area{2, 2, 3, 2}));
  EXPECT_EQ(sheet.topRow, 3);
  EXPECT_TRUE(sheet.selected);
}

TEST(StoredFormat, EightSheetsEndWithNineEndRecords) {
  std::vector<std::pair<std::string, std::string>> sheets;
  for (int i = 1; i <= 8; ++i) sheets.emplace_back("Page " + std::to_string(i), Number(0, 0, i));
  const std::string bytes = Book("", sheets) + "anything after the last sheet";
  Workbook book("WindData");
  Read(bytes, book);
  ASSERT_EQ(book.SheetCount(), 8);
  EXPECT_EQ(book.SheetName(8), "Page 8");
  EXPECT_EQ(Shown(book.GetSheet(8).At(1, 1).value), "8");
}

// Every damaged stream is refused with the offset and the record it failed at.
TEST(StoredFormat, DamagedStreamsNameTheirRecord) {
  const std::string good = OneSheet(Number(0, 0, 1));
  const std::size_t sheetStart = good.size() - 21;  // begin, number, end of the sheet
  const struct {
    std::string bytes;
    std::string message;
  } cases[] = {
      {good.substr(0, good.size() - 5), "record 0x03 (number cell) at offset " +
                                            std::to_string(sheetStart + 5) +
                                            ": the record is truncated"},
      {good.substr(0, sheetStart + 5) + Byte(0x04) + Byte(40) + "ab",
       "a length of 40 runs past the end"},
      {OneSheet(Fixed(0x02, Zeros(4))), "record 0x02 at offset " + std::to_string(sheetStart + 5) +
                                            ": a record type this format does not have"},
      {OneSheet(FormulaCell(0, 0, Int(1) + Int(2))), "leave 2 values instead of one"},
      {OneSheet(FormulaCell(0, 0, Byte(0x03))), "an operator without its operands"},
      {OneSheet(FormulaCell(0, 0, Int(1) + Int(1) + Int(1) + Int(1) + Int(1) + Call(1, 5))),
       "does not read: Wrong number of arguments to IF"},
      {OneSheet(FormulaCell(0, 0, Byte(0x21) + U16(999))), "an unknown function number 999"},
      {OneSheet(Link("[WindData]Sheet1") + FormulaCell(0, 0, Ref3d(-1, 3, 0, 0))),
       "sheet index 3 out of range: the book has 1 sheets"},
      {OneSheet(FormulaCell(0, 0, Ref3d(-1, 0, 0, 0))), "link -1 where the stream has 0"},
      {Book(NameDef("A", NameToken(2)) + NameDef("B", NameToken(3)) + NameDef("C", NameToken(1)),
            {{"Sheet1", ""}}),
       "record 0x18 (defined name) at offset 5: the name A refers to itself through C"},
      {Book(NameDef("A", Int(1), 4), {{"Sheet1", ""}}), "sheet index 4 out of range"},
      {OneSheet(Sized(0x07, U16(1) + "x")), "a formula's text without its formula"},
      {OneSheet(Number(20000, 0, 1)), "row 20001, column 1 lies outside the sheet"},
      {OneSheet(Fixed(0x03, Head(0, 0, 9) + F64(1))), "cell format 9 where the book has 2"},
      {good.substr(0, sheetStart), "the file ends before sheet 1"},
      {Book("", {{"Sheet1", ""}, {"S]", ""}}), "record 0x85 (sheet entry) at offset 84"},
      {OneSheet(Sized(0xA1, U16(1) + U16(100) + U16(1) + U16(40000) + U16(1) + U16(0))),
       "a count of pages beyond 32767"},
      {OneSheet(Fixed(0x26, F64(9e307))), "a margin outside 0 to 100 inches"},
      {Begin(0x10) + End(), "record 0x09 (begin) at offset 0: a book opens with its globals"},
      {"", "the file is empty"},
  };
  for (const auto& c : cases) {
    const std::string failure = ReadFailure(c.bytes);
    EXPECT_NE(failure.find(c.message), std::string::npos) << failure << "\nwanted: " << c.message;
  }
}

TEST(StoredFormat, AFailedReadLeavesTheBookAsItWas) {
  Workbook book("WindData");
  book.SetCellNumber(1, 1, 77);
  EXPECT_FALSE(ReadFailure(OneSheet(FormulaCell(
                               0, 0, Int(1) + Int(1) + Int(1) + Int(1) + Int(1) + Call(1, 5))))
                   .empty());
  std::istringstream in(
      OneSheet(FormulaCell(0, 0, Int(1) + Int(1) + Int(1) + Int(1) + Int(1) + Call(1, 5))));
  EXPECT_THROW(ReadStored(in, book), FacilityError);
  EXPECT_EQ(book.CellNumber(1, 1), 77);
}

// ReadWorkbook tells the format by the file's first bytes, whatever its extension, and the
// book then gives the same values as the same book in our own format.
TEST(StoredFormat, ReadWorkbookKnowsTheStreamAndKeepsItsValues) {
  const std::filesystem::path folder = testing::UniqueTempFolder("stored-format-");
  std::filesystem::create_directories(folder);
  const std::string path = (folder / "project.txt").string();
  std::ofstream(path, std::ios::binary)
      << OneSheet(Number(0, 0, 90) + FormulaCell(1, 0, Ref(0, 0) + Ref(0, 0) + Byte(0x05)) +
                  FormulaCell(2, 0, Ref(1, 0) + Int(2) + Byte(0x06) + Call(20, 1)));
  Workbook stored("WindData");
  EXPECT_EQ(stored.ReadWorkbook(path), FileType::Native);
  stored.WriteWorkbook((folder / "project.gln").string(), FileType::Native);
  Workbook native("WindData");
  native.ReadWorkbook((folder / "project.gln").string());
  for (Workbook* book : {&stored, &native}) {
    book->Recalc();
    EXPECT_EQ(book->CellNumber(2, 1), 8100);
    EXPECT_DOUBLE_EQ(book->CellNumber(3, 1), std::sqrt(4050.0));
  }
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace gustline::wb
