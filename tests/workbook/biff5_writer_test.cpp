#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <tuple>

#include "TempFolder.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

// Reads an Excel 5.0 file with Debian's python3-xlrd and prints one line per item:
// "sheet<TAB>index<TAB>name", "cell<TAB>sheet<TAB>row<TAB>col<TAB>kind<TAB>value" (numbers
// as hexadecimal floats, so that they compare exactly),
// "format<TAB>sheet<TAB>row<TAB>col<TAB>text", "font<TAB>sheet<TAB>row<TAB>col<TAB>weight
// colour", "width<TAB>sheet<TAB>col<TAB>width" and "hidden<TAB>sheet<TAB>row<TAB>1".
constexpr const char* kReaderScript = R"(
import sys, xlrd
book = xlrd.open_workbook(sys.argv[1], formatting_info=True, ragged_rows=True)
out = []
for s in range(book.nsheets):
    sheet = book.sheet_by_index(s)
    out.append('sheet\t%d\t%s' % (s + 1, sheet.name))
    for c, info in sheet.colinfo_map.items():
        out.append('width\t%d\t%d\t%d' % (s + 1, c + 1, info.width))
    for r, info in sheet.rowinfo_map.items():
        if info.hidden:
            out.append('hidden\t%d\t%d\t1' % (s + 1, r + 1))
    for r in range(sheet.nrows):
        for c in range(sheet.row_len(r)):
            cell = sheet.cell(r, c)
            if cell.ctype == xlrd.XL_CELL_EMPTY or cell.ctype == xlrd.XL_CELL_BLANK:
                continue
            if cell.ctype in (xlrd.XL_CELL_NUMBER, xlrd.XL_CELL_DATE):
                kind, value = 'number', float(cell.value).hex()
            elif cell.ctype == xlrd.XL_CELL_TEXT:
                kind, value = 'text', cell.value
            elif cell.ctype == xlrd.XL_CELL_BOOLEAN:
                kind, value = 'boolean', 'TRUE' if cell.value else 'FALSE'
            else:
                kind, value = 'error', xlrd.error_text_from_code[cell.value]
            out.append('cell\t%d\t%d\t%d\t%s\t%s' % (s + 1, r + 1, c + 1, kind, value))
            fmt = book.format_map[book.xf_list[cell.xf_index].format_key].format_str
            out.append('format\t%d\t%d\t%d\t%s' % (s + 1, r + 1, c + 1, fmt))
            font = book.font_list[book.xf_list[cell.xf_index].font_index]
            out.append('font\t%d\t%d\t%d\t%s %s' % (s + 1, r + 1, c + 1,
                       'bold' if font.bold else 'normal',
                       'white' if font.colour_index == 9 else 'auto'))
sys.stdout.buffer.write(('\n'.join(out) + '\n').encode('utf-8'))
)";

std::optional<std::string> FindReader() {
  for (const char* python : {"/usr/bin/python3", "python3"}) {
    const std::string probe = std::string(python) + " -c 'import xlrd' 2>/dev/null";
    if (std::system(probe.c_str()) == 0) return std::string(python);
  }
  return std::nullopt;
}

std::string RunReader(const std::string& python, const std::filesystem::path& file) {
  const std::filesystem::path script = file.parent_path() / "read_xls.py";
  {
    std::ofstream out(script);
    out << kReaderScript;
  }
  const std::string command = python + " '" + script.string() + "' '" + file.string() + "'";
  std::string output;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return output;
  std::array<char, 4096> buffer{};
  std::size_t read = 0;
  while ((read = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
    output.append(buffer.data(), read);
  pclose(pipe);
  return output;
}

std::string HexFloat(double number) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%a", number);
  return text.data();
}

// One line of the reader's output, by what it describes; numbers made comparable.
using Listing = std::map<std::string, std::string>;

Listing ParseListing(const std::string& output) {
  Listing listing;
  std::istringstream in(output);
  std::string line;
  while (std::getline(in, line)) {
    const auto last = line.rfind('\t');
    std::string key = line.substr(0, last);
    std::string value = line.substr(last + 1);
    if (key.ends_with("\tnumber")) value = HexFloat(std::strtod(value.c_str(), nullptr));
    listing[key] = value;
  }
  return listing;
}

// What the reader must find in the book: every non-empty value with its number format and
// font, the column widths (in 1/256 of a character) and the hidden rows.
Listing Expected(Workbook& book) {
  Listing listing;
  for (int s = 1; s <= book.SheetCount(); ++s) {
    listing["sheet\t" + std::to_string(s)] = book.SheetName(s);
    for (const auto& [col, width] : book.GetSheet(s).ColumnWidths())
      listing["width\t" + std::to_string(s) + '\t' + std::to_string(col)] =
          std::to_string(std::lround(width * 256));
    for (const int row : book.GetSheet(s).HiddenRows())
      listing["hidden\t" + std::to_string(s) + '\t' + std::to_string(row)] = "1";
    book.SetActiveSheet(s);
    book.GetSheet(s).ForEachCell([&](int row, int col, const Cell&) {
      const Value value = book.CellValue(row, col);
      const std::string at =
          std::to_string(s) + '\t' + std::to_string(row) + '\t' + std::to_string(col);
      std::string kind;
      std::string text;
      switch (value.GetKind()) {
        case Value::Kind::Empty:
          return;
        case Value::Kind::Number:
          kind = "number";
          text = HexFloat(value.AsNumber());
          break;
        case Value::Kind::Text:
          if (value.AsText().empty()) return;
          kind = "text";
          text = value.AsText().substr(0, 255);
          break;
        case Value::Kind::Boolean:
          kind = "boolean";
          text = value.AsBoolean() ? "TRUE" : "FALSE";
          break;
        case Value::Kind::Error:
          kind = "error";
          text = std::string(ErrorText(value.AsError()));
          break;
      }
      listing["cell\t" + at + '\t' + kind] = text;
      const CellStyle& style = book.GetCellStyle(row, col);
      listing["format\t" + at] = style.numberFormat;
      listing["font\t" + at] = std::string(style.font.bold ? "bold" : "normal") +
                               (style.font.color == 0xFFFFFF ? " white" : " auto");
    });
  }
  return listing;
}

void SetFormat(Workbook& book, int row, int col, const std::string& format) {
  CellStyle style = book.GetCellStyle(row, col);
  style.numberFormat = format;
  book.SetCellStyle(row, col, style);
}

// A report page with every kind of value, formulas that give their results, number formats
// built in and custom, the degree sign of the project's texts, a bold heading, a white
// value for formulas only, column widths and a hidden row.
void BuildReportPages(Workbook& book) {
  book.SetSheetName(1, "Page 1");
  book.SetCellText(1, 1, "Design Wind Pressure, p, Equation 6-17  (ASCE 7-05)");
  book.SetCellText(2, 1, "Roof angle 10°, “Zone 1” – 6-17");
  book.SetCellNumber(3, 2, 17.428542112355654);
  SetFormat(book, 3, 2, "0.00");
  book.SetCellNumber(4, 2, -0.18);
  SetFormat(book, 4, 2, "0.000 \"psf\"");
  book.SetCellNumber(5, 2, 1e-300);
  book.SetCellFormula(6, 2, "B3*0.85");
  SetFormat(book, 6, 2, "#,##0.00");
  book.SetCellFormula(7, 2, "1/0");
  book.SetCellFormula(7, 3, "MATCH(5,B3:B4,0)");
  book.SetCellFormula(8, 2, "B3>10");
  book.SetCellFormula(8, 3, "\"qz = \"&ROUND(B3,2)");
  book.SetCellText(9, 4, std::string(300, 'x'));
  book.SetCellFormula(10, 1, "\"\"");
  book.SetColumnWidth(1, 1, 40);
  book.SetColumnWidth(3, 3, 12.5);
  CellStyle heading = book.GetCellStyle(1, 1);
  heading.font.bold = true;
  book.SetCellStyle(1, 1, heading);
  book.SetCellNumber(2, 12, 10);
  CellStyle formulasOnly;
  formulasOnly.font.color = 0xFFFFFF;
  book.SetCellStyle(2, 12, formulasOnly);
  book.SetRowHidden(5, true);
  book.AddSheet("Page 2");
  book.SetActiveSheet(2);
  book.SetCellNumber(16384, 256, 42);
  book.AddSheet("Empty");
  book.SetActiveSheet(1);
}

void BuildLongTable(Workbook& book) {
  for (int row = 1; row <= 6000; ++row) {
    book.SetCellNumber(row, 1, row * 0.5);
    book.SetCellText(row, 2, "z = " + std::to_string(row));
  }
}

class Biff5WriterTest
    : public ::testing::TestWithParam<std::tuple<std::string, void (*)(Workbook&)>> {
 protected:
  void SetUp() override {
    folder_ = gustline::testing::UniqueTempFolder("gustline-biff5-");
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path folder_;
};

TEST_P(Biff5WriterTest, AnIndependentReaderReadsEveryValueTextAndFormat) {
  const auto reader = FindReader();
  if (!reader) GTEST_SKIP() << "python3-xlrd is not installed (scripts/install-deps.sh adds it)";
  Workbook book("BufferSS");
  std::get<1>(GetParam())(book);
  const std::filesystem::path file = folder_ / "REPORT.XLS";
  book.WriteWorkbook(file.string(), FileType::Excel5);
  EXPECT_EQ(ParseListing(RunReader(*reader, file)), Expected(book));
}

INSTANTIATE_TEST_SUITE_P(Books, Biff5WriterTest,
                         ::testing::Values(std::make_tuple("ReportPages", &BuildReportPages),
                                           std::make_tuple("LongTable", &BuildLongTable)),
                         [](const auto& info) { return std::get<0>(info.param); });

}  // namespace
}  // namespace gustline::wb
