#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>
#include <set>
#include <unordered_map>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/io/SheetFileCodes.h"
#include "core/workbook/io/StoredFormat.h"
#include "core/workbook/io/StoredStyles.h"
#include "core/workbook/io/StoredTokens.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"
#include "core/workbook/value/Utf8.h"

namespace gustline::wb {
namespace {

constexpr std::uint16_t kVersion = 0x0500;
constexpr std::uint16_t kGlobalsKind = 0x0005;
constexpr std::uint16_t kSheetKind = 0x0010;
constexpr std::uint8_t kBegin = 0x09;
constexpr std::uint8_t kEnd = 0x0A;
constexpr std::uint16_t kBuiltInName = 0x0020;

// The names that a built-in name's code stands for; only the print area has a place in
// our books, the others are dropped.
constexpr std::string_view kBuiltInNames[] = {
    "Consolidate_Area", "Auto_Open",       "Auto_Close",   "Extract",  "Database",
    "Criteria",         "Print_Area",      "Print_Titles", "Recorder", "Data_Form",
    "Auto_Activate",    "Auto_Deactivate", "Sheet_Title"};
constexpr std::uint8_t kPrintAreaCode = 6;

struct PendingName {
  Record record;
  std::string name;
  bool printArea = false;
  int sheet = 0;  // 1-based; 0 for the whole book
  std::string_view tokens;
};

struct PendingFormula {
  Record record;
  std::string_view tokens;
  std::size_t sheet = 0;
  std::size_t cell = 0;  // into the sheet's cells
};

double Finite(RecordReader& in, double value) {
  if (!std::isfinite(value)) in.Fail("a number that is not finite");
  return value;
}

double Margin(RecordReader& in) {
  const double inches = in.F64();
  if (!(inches >= 0 && inches <= 100)) in.Fail("a margin outside 0 to 100 inches");
  return inches;
}

// A packed number: the upper 30 bits as a whole number or as the high half of a double,
// hundredths when bit 0 is set.
double Unpacked(std::uint32_t word) {
  double value = 0;
  if (word & 0x02)
    value = static_cast<double>(static_cast<std::int32_t>(word) >> 2);
  else
    value = std::bit_cast<double>(static_cast<std::uint64_t>(word & 0xFFFFFFFCu) << 32);
  return (word & 0x01) ? value / 100 : value;
}

class StoredBuilder {
 public:
  explicit StoredBuilder(std::string_view bookName) : bookName_(bookName) {}

  WorkbookDocument Build(std::string_view bytes) {
    RecordStream stream(bytes);
    if (stream.AtEnd())
      throw FacilityError(errc::kFileCorrupt, "The workbook file is damaged: the file is empty");
    const Record first = stream.Next();
    if (first.type != kBegin)
      RecordFail(first, "a book opens with the begin record of its globals");
    Begin(first, kGlobalsKind);
    Record last = ReadStream(stream, first);
    if (document_.sheets.empty()) RecordFail(last, "a book without sheet entries");
    for (std::size_t i = 0; i < document_.sheets.size(); ++i) {
      if (stream.AtEnd()) RecordFail(last, "the file ends before sheet " + std::to_string(i + 1));
      const Record begin = stream.Next();
      if (begin.type != kBegin) RecordFail(begin, "a sheet opens with a begin record");
      Begin(begin, kSheetKind);
      sheet_ = i;
      last = ReadStream(stream, begin);
    }
    Finish();
    return std::move(document_);
  }

 private:
  static void Begin(const Record& record, std::uint16_t kind) {
    RecordReader in(record);
    if (in.U16() != kVersion) in.Fail("a version this program does not read");
    if (in.U16() != kind)
      in.Fail(kind == kGlobalsKind ? "a book opens with its globals" : "a sheet stream expected");
  }

  // The records up to the end of the stream that `begin` opened; a stream nested in it (a
  // chart on a sheet) is passed over whole. Returns the end record.
  Record ReadStream(RecordStream& stream, const Record& begin) {
    Record record = begin;
    int nested = 0;
    // A formula's text record follows it in the same stream, never in the next one.
    pendingText_.reset();
    for (;;) {
      if (stream.AtEnd()) RecordFail(record, "the file ends before the end of its stream");
      record = stream.Next();
      if (record.type == kBegin) {
        ++nested;
      } else if (record.type == kEnd) {
        if (nested-- == 0) return record;
      } else if (nested == 0) {
        Take(record);
      }
    }
  }

  SheetRecord& Sheet(const RecordReader& in) {
    if (!sheet_) in.Fail("a sheet's record among the book's globals");
    return document_.sheets[*sheet_];
  }

  std::vector<StoredLink>& Links() { return sheet_ ? sheetLinks_[*sheet_] : globalLinks_; }

  void Take(const Record& record) {
    RecordReader in(record);
    if (record.type != 0x07) pendingText_.reset();
    switch (record.type) {
      case 0x01: {
        const CellAddress address = CellAt(in);
        const std::uint32_t style = StyleAt(in);
        if (style != 0) AddCell(in, {address, style, Value(), std::nullopt});
        break;
      }
      case 0x03: {
        const CellAddress address = CellAt(in);
        const std::uint32_t style = StyleAt(in);
        AddCell(in, {address, style, Value::Number(Finite(in, in.F64())), std::nullopt});
        break;
      }
      case 0x04: {
        const CellAddress address = CellAt(in);
        const std::uint32_t style = StyleAt(in);
        AddCell(in, {address, style, Value::Text(in.Text(in.U16())), std::nullopt});
        break;
      }
      case 0x05:
        return BooleanOrError(in);
      case 0x06:
        return FormulaCell(in);
      case 0x07: {
        if (!pendingText_) in.Fail("a formula's text without its formula");
        Sheet(in).cells[*pendingText_].value = Value::Text(in.Text(in.U16()));
        pendingText_.reset();
        break;
      }
      case 0x08:
        return Row(in);
      case 0x0C: {
        const std::uint16_t count = in.U16();
        if (count > 32767) in.Fail("an iteration count beyond 32767");
        document_.maxIterations = count;
        break;
      }
      case 0x0D:
        document_.autoRecalc = in.U16() != 0;
        break;
      case 0x10: {
        const double change = Finite(in, in.F64());
        if (change < 0 || change > 1) in.Fail("an iteration change outside 0 to 1");
        document_.maxChange = change;
        break;
      }
      case 0x11:
        document_.iterationOn = in.U16() != 0;
        break;
      case 0x14:
        Sheet(in).print.header = in.Text(in.U8());
        break;
      case 0x15:
        Sheet(in).print.footer = in.Text(in.U8());
        break;
      case 0x17:
        return Link(in);
      case 0x18:
        return Name(in);
      case 0x1A:
      case 0x1B: {
        // Our sheets break pages by their print setup; the positions are checked and dropped.
        const std::uint16_t count = in.U16();
        in.Skip(static_cast<std::size_t>(count) * 2);
        break;
      }
      case 0x1D:
        return Selection(in);
      case 0x1E:
        return styles_.AddNumberFormat(in);
      case 0x23: {
        if (Links().empty()) in.Fail("a linked name without its link");
        in.Skip(6);
        Links().back().names.push_back(in.Text(in.U8()));
        break;
      }
      case 0x26:
        Sheet(in).print.leftMargin = Margin(in);
        break;
      case 0x27:
        Sheet(in).print.rightMargin = Margin(in);
        break;
      case 0x28:
        Sheet(in).print.topMargin = Margin(in);
        break;
      case 0x29:
        Sheet(in).print.bottomMargin = Margin(in);
        break;
      case 0x2A:
        Sheet(in).print.rowHeading = in.U16() != 0;
        break;
      case 0x2B:
        Sheet(in).print.gridLines = in.U16() != 0;
        break;
      case 0x31:
        return styles_.AddFont(in);
      case 0x3D:
        in.Skip(10);
        activeSheet_ = in.U16();
        activeSheetRecord_ = record;
        break;
      case 0x3E:
        return SheetWindow(in);
      case 0x7D:
        return ColumnInfo(in);
      case 0x7E: {
        const CellAddress address = CellAt(in);
        const std::uint32_t style = StyleAt(in);
        AddCell(in, {address, style, Value::Number(Finite(in, Unpacked(in.U32()))), std::nullopt});
        break;
      }
      case 0x81:
        Sheet(in).print.fitToPages = (in.U16() & 0x0100) != 0;
        break;
      case 0x83:
        Sheet(in).print.hCenter = in.U16() != 0;
        break;
      case 0x84:
        Sheet(in).print.vCenter = in.U16() != 0;
        break;
      case 0x85:
        return SheetEntry(in);
      case 0x99:
        Sheet(in).defaultWidth = in.U16() / 256.0;
        break;
      case 0xA1:
        return PageSetup(in);
      case 0xBD:
      case 0xBE:
        return CellRun(in, record.type == 0xBD);
      case 0xE0:
        if (sheet_) in.Fail("a cell format inside a sheet");
        return styles_.AddCellFormat(in);
      default:
        // Dimensions, heights, widths of no use to us, country, scale, printer settings
        // and the writing program's own records: their length is all that matters.
        break;
    }
  }

  CellAddress CellAt(RecordReader& in) {
    const std::uint16_t row = in.U16();
    const std::uint16_t col = in.U16();
    return Address(in, row, col);
  }

  static CellAddress Address(const RecordReader& in, std::uint16_t row, std::uint16_t col) {
    if (row >= kMaxRow || col >= kMaxCol)
      in.Fail("row " + std::to_string(row + 1) + ", column " + std::to_string(col + 1) +
              " lies outside the sheet");
    return {row + 1, col + 1};
  }

  // The document's style of a cell format, numbered by first use; 0 for the default look.
  std::uint32_t StyleAt(RecordReader& in) {
    const std::uint16_t index = in.U16();
    if (index >= styles_.CellFormatCount())
      in.Fail("cell format " + std::to_string(index) + " where the book has " +
              std::to_string(styles_.CellFormatCount()));
    if (const auto found = styleOfFormat_.find(index); found != styleOfFormat_.end())
      return found->second;
    const CellStyle style = styles_.StyleOf(index);
    std::uint32_t number = 0;
    if (!(style == CellStyle{})) {
      const auto known = std::find(document_.styles.begin(), document_.styles.end(), style);
      number = static_cast<std::uint32_t>(known - document_.styles.begin()) + 1;
      if (known == document_.styles.end()) document_.styles.push_back(style);
    }
    styleOfFormat_.emplace(index, number);
    return number;
  }

  void AddCell(const RecordReader& in, CellRecord cell) {
    Sheet(in).cells.push_back(std::move(cell));
  }

  void BooleanOrError(RecordReader& in) {
    const CellAddress address = CellAt(in);
    const std::uint32_t style = StyleAt(in);
    const std::uint8_t value = in.U8();
    Value cellValue = Value::Boolean(value != 0);
    if (in.U8() == 1) {
      const auto code = ErrorOfByte(value);
      if (!code) in.Fail("an unknown error code");
      cellValue = Value::Error(*code);
    }
    AddCell(in, {address, style, cellValue, std::nullopt});
  }

  void FormulaCell(RecordReader& in) {
    const CellAddress address = CellAt(in);
    const std::uint32_t style = StyleAt(in);
    const std::string_view result = in.Bytes(8);
    in.Skip(6);  // option bits, reserved
    const std::string_view tokens = in.Bytes(in.U16());
    Value cached;
    bool textFollows = false;
    if (result[6] == '\xFF' && result[7] == '\xFF') {
      const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(result[i]); };
      switch (byte(0)) {
        case 0:
          textFollows = true;
          cached = Value::Text("");
          break;
        case 1:
          cached = Value::Boolean(byte(2) != 0);
          break;
        case 2: {
          const auto code = ErrorOfByte(byte(2));
          if (!code) in.Fail("a cached result with an unknown error code");
          cached = Value::Error(*code);
          break;
        }
        case 3:
          cached = Value::Text("");
          break;
        default:
          in.Fail("a cached result of an unknown kind");
      }
    } else {
      RecordReader number(Record{in.Source().type, in.Source().offset, result});
      cached = Value::Number(Finite(in, number.F64()));
    }
    SheetRecord& sheet = Sheet(in);
    sheet.cells.push_back({address, style, cached, std::nullopt});
    formulas_.push_back({in.Source(), tokens, *sheet_, sheet.cells.size() - 1});
    if (textFollows) pendingText_ = sheet.cells.size() - 1;
  }

  void CellRun(RecordReader& in, bool numbers) {
    const std::uint16_t row = in.U16();
    const std::uint16_t firstCol = in.U16();
    const std::size_t width = numbers ? 6 : 2;
    if (in.Left() < 2 + width || (in.Left() - 2) % width != 0)
      in.Fail("a length that holds no whole number of cells");
    const std::size_t count = (in.Left() - 2) / width;
    for (std::size_t i = 0; i < count; ++i) {
      const CellAddress address = Address(in, row, static_cast<std::uint16_t>(firstCol + i));
      const std::uint32_t style = StyleAt(in);
      if (numbers)
        AddCell(in, {address, style, Value::Number(Finite(in, Unpacked(in.U32()))), std::nullopt});
      else if (style != 0)
        AddCell(in, {address, style, Value(), std::nullopt});
    }
    if (in.U16() != firstCol + count - 1) in.Fail("a last column that does not match its cells");
  }

  void Row(RecordReader& in) {
    const std::uint16_t row = in.U16();
    in.Skip(10);
    const std::uint16_t flags = in.U16();
    if (row >= kMaxRow) in.Fail("row " + std::to_string(row + 1) + " lies outside the sheet");
    Sheet(in);
    if (flags & 0x0020) hiddenRows_[*sheet_].insert(row + 1);
  }

  void ColumnInfo(RecordReader& in) {
    const std::uint16_t first = in.U16();
    const std::uint16_t last = in.U16();
    const std::uint16_t width = in.U16();
    in.Skip(2);
    const bool hidden = (in.U16() & 0x0001) != 0;
    if (first > last || last >= kMaxCol) in.Fail("columns out of range");
    SheetRecord& sheet = Sheet(in);
    for (int col = first; col <= last; ++col)
      sheet.columnWidths[col + 1] = hidden ? 0.0 : width / 256.0;
  }

  void Selection(RecordReader& in) {
    SheetRecord& sheet = Sheet(in);
    in.Skip(1);
    const std::uint16_t row = in.U16();
    const std::uint16_t col = in.U16();
    sheet.active = Address(in, row, col);
    in.Skip(2);
    if (in.U16() == 0) {
      sheet.selection = {sheet.active.row, sheet.active.col, sheet.active.row, sheet.active.col};
      return;
    }
    const std::uint16_t firstRow = in.U16();
    const std::uint16_t lastRow = in.U16();
    const std::uint8_t firstCol = in.U8();
    const std::uint8_t lastCol = in.U8();
    const CellAddress first = Address(in, firstRow, firstCol);
    const CellAddress last = Address(in, lastRow, lastCol);
    if (first.row > last.row || first.col > last.col) in.Fail("a selection turned inside out");
    sheet.selection = {first.row, first.col, last.row, last.col};
  }

  void SheetWindow(RecordReader& in) {
    SheetRecord& sheet = Sheet(in);
    const std::uint16_t options = in.U16();
    const CellAddress topLeft = CellAt(in);
    sheet.display.gridLines = (options & 0x0002) != 0;
    sheet.display.rowHeadings = sheet.display.colHeadings = (options & 0x0004) != 0;
    sheet.selected = (options & 0x0200) != 0;
    sheet.topRow = topLeft.row;
    sheet.leftCol = topLeft.col;
  }

  void PageSetup(RecordReader& in) {
    PrintSetup& print = Sheet(in).print;
    in.Skip(2);  // paper size
    const std::uint16_t scale = in.U16();
    in.Skip(2);  // first page number
    const std::uint16_t wide = in.U16();
    const std::uint16_t tall = in.U16();
    const std::uint16_t options = in.U16();
    if (wide > 32767 || tall > 32767) in.Fail("a count of pages beyond 32767");
    print.pagesWide = wide;
    print.pagesTall = tall;
    print.leftToRight = (options & 0x0001) != 0;
    print.noColor = (options & 0x0008) != 0;
    // Without printer information the scale and the orientation are not set.
    if (options & 0x0004) return;
    print.scale = scale;
    print.landscape = (options & 0x0002) == 0;
  }

  void SheetEntry(RecordReader& in) {
    if (sheet_) in.Fail("a sheet entry inside a sheet");
    in.Skip(2);
    const std::string name = in.Text(in.U8());
    if (name.empty()) in.Fail("a sheet without a name");
    if (document_.sheets.size() >= kMaxNativeSheets) in.Fail("too many sheets");
    for (const SheetRecord& other : document_.sheets)
      if (EqualNoCase(other.name, name)) in.Fail("the sheet " + PrintableText(name) + " twice");
    document_.sheets.emplace_back().name = name;
    sheetEntries_.push_back(in.Source());
    sheetLinks_.emplace_back();
    hiddenRows_.emplace_back();
  }

  void Link(RecordReader& in) {
    const std::uint8_t length = in.U8();
    if (length == 0) in.Fail("an empty link");
    in.Skip(1);  // the kind of link
    const std::string text = in.Text(length - 1u);
    StoredLink link;
    const std::size_t close = text.find(']');
    if (!text.empty() && text.front() == '[' && close != std::string::npos) {
      link.book = text.substr(1, close - 1);
      link.sheet = text.substr(close + 1);
    } else {
      link.sheet = text;
    }
    Links().push_back(std::move(link));
  }

  void Name(RecordReader& in) {
    if (sheet_) in.Fail("a defined name inside a sheet");
    if (names_.size() >= kMaxNativeNames) in.Fail("too many names");
    const std::uint16_t options = in.U16();
    in.Skip(1);
    const std::uint8_t nameLength = in.U8();
    const std::uint16_t tokenLength = in.U16();
    in.Skip(2);
    PendingName name{in.Source(), "", false, in.U16(), {}};
    in.Skip(4);
    if (nameLength == 0) in.Fail("a name without its text");
    if (options & kBuiltInName) {
      const std::uint8_t code = in.U8();
      in.Skip(nameLength - 1u);
      if (code >= std::size(kBuiltInNames)) in.Fail("an unknown built-in name");
      name.name = std::string(kBuiltInNames[code]);
      name.printArea = code == kPrintAreaCode;
    } else {
      name.name = in.Text(nameLength);
    }
    name.tokens = in.Bytes(tokenLength);
    names_.push_back(std::move(name));
  }

  // The formulas are read once every sheet and name is known, each tried on a scratch book
  // so that a text our parser refuses is told with its record.
  void Finish() {
    if (activeSheetRecord_) {
      if (activeSheet_ >= document_.sheets.size())
        RecordFail(*activeSheetRecord_, "sheet index " + std::to_string(activeSheet_) +
                                            " out of range: the book has " +
                                            std::to_string(document_.sheets.size()) + " sheets");
      document_.activeSheet = activeSheet_ + 1;
    }
    std::vector<std::string> sheetNames;
    Workbook trial(std::string{bookName_});
    for (std::size_t i = 0; i < document_.sheets.size(); ++i) {
      const std::string& name = document_.sheets[i].name;
      sheetNames.push_back(name);
      try {
        if (i == 0)
          trial.SetSheetName(1, name);
        else
          trial.AddSheet(name);
      } catch (const FacilityError& error) {
        RecordFail(sheetEntries_[i], error.what());
      }
    }
    std::vector<std::string> nameTexts;
    for (const PendingName& name : names_) nameTexts.push_back(name.name);

    std::vector<std::vector<std::string>> used(names_.size());
    for (std::size_t i = 0; i < names_.size(); ++i) {
      const PendingName& name = names_[i];
      if (name.sheet > static_cast<int>(sheetNames.size()) || (name.printArea && name.sheet == 0))
        RecordFail(name.record, "sheet index " + std::to_string(name.sheet) +
                                    " out of range: the book has " +
                                    std::to_string(sheetNames.size()) + " sheets");
      const TokenContext context{globalLinks_, nameTexts, sheetNames, bookName_, {1, 1}};
      std::string text = TokenFormulaText(name.tokens, context, name.record, used[i]);
      // A name keeps its text as given, so it takes the text our printer would give.
      const FormulaHost host{&trial, 0, {1, 1}};
      Try(name.record, text, [&] { text = FormulaText(*ParseFormula(text, host), host); });
      if (name.printArea) {
        document_.sheets[static_cast<std::size_t>(name.sheet - 1)].print.printArea = text;
        continue;
      }
      Try(name.record, text, [&] { trial.SetDefinedName(name.name, text); });
      document_.names.push_back({name.name, text});
    }
    CheckNameLoops(used);

    std::vector<std::string> unused;
    for (const PendingFormula& formula : formulas_) {
      CellRecord& cell = document_.sheets[formula.sheet].cells[formula.cell];
      const TokenContext context{sheetLinks_[formula.sheet], nameTexts, sheetNames, bookName_,
                                 cell.address};
      std::string text = TokenFormulaText(formula.tokens, context, formula.record, unused);
      const FormulaHost host{&trial, static_cast<int>(formula.sheet), cell.address};
      Try(formula.record, text, [&] { ParseFormula(text, host); });
      cell.formula = std::move(text);
    }

    for (std::size_t i = 0; i < document_.sheets.size(); ++i) {
      SheetRecord& sheet = document_.sheets[i];
      sheet.hiddenRows.assign(hiddenRows_[i].begin(), hiddenRows_[i].end());
      // Row-major, and a cell written twice keeps its last record.
      std::stable_sort(sheet.cells.begin(), sheet.cells.end(),
                       [](const CellRecord& a, const CellRecord& b) {
                         return std::pair(a.address.row, a.address.col) <
                                std::pair(b.address.row, b.address.col);
                       });
      std::vector<CellRecord> unique;
      for (CellRecord& cell : sheet.cells) {
        if (!unique.empty() && unique.back().address.row == cell.address.row &&
            unique.back().address.col == cell.address.col)
          unique.back() = std::move(cell);
        else
          unique.push_back(std::move(cell));
      }
      sheet.cells = std::move(unique);
    }
  }

  template <typename Fn>
  static void Try(const Record& record, const std::string& text, Fn&& apply) {
    try {
      apply();
    } catch (const FacilityError& error) {
      RecordFail(record, "the formula " + PrintableText(text) + " does not read: " + error.what());
    }
  }

  // A name that reaches itself through the names its formula calls would never settle.
  void CheckNameLoops(const std::vector<std::vector<std::string>>& used) const {
    std::unordered_map<std::string, std::size_t> byKey;
    for (std::size_t i = 0; i < names_.size(); ++i)
      if (!names_[i].printArea) byKey.emplace(UpperAscii(names_[i].name), i);
    enum class Mark : std::uint8_t { New, Open, Done };
    std::vector<Mark> marks(names_.size(), Mark::New);
    for (std::size_t start = 0; start < names_.size(); ++start) {
      if (marks[start] != Mark::New) continue;
      // Depth first without recursion: a chain of names may be as long as the file allows.
      std::vector<std::pair<std::size_t, std::size_t>> path{{start, 0}};
      marks[start] = Mark::Open;
      while (!path.empty()) {
        auto& [node, next] = path.back();
        if (next == used[node].size()) {
          marks[node] = Mark::Done;
          path.pop_back();
          continue;
        }
        const auto found = byKey.find(UpperAscii(used[node][next++]));
        if (found == byKey.end()) continue;
        const std::size_t target = found->second;
        if (marks[target] == Mark::Open)
          RecordFail(names_[target].record, "the name " + PrintableText(names_[target].name) +
                                                " refers to itself through " +
                                                PrintableText(names_[node].name));
        if (marks[target] == Mark::New) {
          marks[target] = Mark::Open;
          path.emplace_back(target, 0);
        }
      }
    }
  }

  std::string_view bookName_;
  WorkbookDocument document_;
  std::optional<std::size_t> sheet_;  // the sheet whose stream is being read
  StoredStyles styles_;
  std::unordered_map<std::uint16_t, std::uint32_t> styleOfFormat_;
  std::vector<StoredLink> globalLinks_;
  std::vector<Record> sheetEntries_;
  std::vector<std::vector<StoredLink>> sheetLinks_;
  std::vector<std::set<int>> hiddenRows_;
  std::vector<PendingName> names_;
  std::vector<PendingFormula> formulas_;
  std::optional<std::size_t> pendingText_;  // the formula cell whose text record comes next
  std::size_t activeSheet_ = 0;
  std::optional<Record> activeSheetRecord_;
};

}  // namespace

bool LooksStored(std::string_view head) {
  return head.size() >= 5 && head.substr(0, 5) == std::string_view("\x09\x00\x05\x05\x00", 5);
}

WorkbookDocument ParseStored(std::string_view bytes, std::string_view bookName) {
  return StoredBuilder(bookName).Build(bytes);
}

void ReadStored(std::istream& in, Workbook& book) {
  std::string content;
  char buffer[1 << 16];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
    content.append(buffer, static_cast<std::size_t>(in.gcount()));
    if (content.size() > kMaxNativeFile)
      throw FacilityError(errc::kFileCorrupt, "The workbook file is damaged: it is too large");
  }
  ApplyReadDocument(ParseStored(content, book.BookName()), book);
}

}  // namespace gustline::wb
