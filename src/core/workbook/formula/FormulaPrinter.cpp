#include <algorithm>
#include <cctype>
#include <charconv>

#include "core/workbook/formula/FormulaAst.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

using Node = Formula::Node;
using Kind = Formula::Kind;

constexpr const char* kBinaryText[] = {"+",  "-", "*", "/",  "^",  "&", "=",
                                       "<>", "<", ">", "<=", ">=", ":"};

// A sheet name reads back unquoted when it is a plain word that is not a cell reference.
bool NeedsQuotes(std::string_view sheet) {
  if (sheet.empty() ||
      !(std::isalpha(static_cast<unsigned char>(sheet.front())) || sheet.front() == '_'))
    return true;
  for (char c : sheet) {
    if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_' && c != '.') return true;
  }
  std::size_t letters = 0;
  while (letters < sheet.size() && std::isalpha(static_cast<unsigned char>(sheet[letters])))
    ++letters;
  const bool digitsAfter =
      letters < sheet.size() &&
      std::all_of(sheet.begin() + static_cast<long>(letters), sheet.end(),
                  [](char c) { return std::isdigit(static_cast<unsigned char>(c)); });
  return letters <= 3 && digitsAfter;
}

void AppendQuoted(std::string& out, std::string_view text, char quote) {
  out += quote;
  for (char c : text) {
    out += c;
    if (c == quote) out += quote;
  }
  out += quote;
}

class Printer {
 public:
  Printer(const Formula& formula, const FormulaHost& host) : f_(formula), host_(host) {}

  std::string Run() {
    out_.reserve(64);
    Print(f_.root);
    return std::move(out_);
  }

 private:
  void Print(std::int32_t index) {
    const Node& node = f_.nodes[static_cast<std::size_t>(index)];
    switch (node.kind) {
      case Kind::Number: {
        char buffer[32];
        const auto result = std::to_chars(buffer, buffer + sizeof buffer, node.number);
        out_.append(buffer, result.ptr);
        break;
      }
      case Kind::Text:
        AppendQuoted(out_, f_.texts[static_cast<std::size_t>(node.aux)], '"');
        break;
      case Kind::Boolean:
        out_ += node.number != 0 ? "TRUE" : "FALSE";
        break;
      case Kind::Error:
        out_ += ErrorText(static_cast<ErrorCode>(node.aux));
        break;
      case Kind::Ref:
        PrintRef(f_.refs[static_cast<std::size_t>(node.aux)]);
        break;
      case Kind::Name: {
        const NameTarget& name = f_.names[static_cast<std::size_t>(node.aux)];
        PrintSheet(name.sheet);
        out_ += name.text;
        break;
      }
      case Kind::Unary: {
        const auto op = static_cast<UnaryOp>(node.aux);
        if (op == UnaryOp::Minus) out_ += '-';
        if (op == UnaryOp::Plus) out_ += '+';
        Print(f_.KidIndex(node, 0));
        if (op == UnaryOp::Percent) out_ += '%';
        break;
      }
      case Kind::Binary:
        Print(f_.KidIndex(node, 0));
        out_ += kBinaryText[node.aux];
        Print(f_.KidIndex(node, 1));
        break;
      case Kind::Paren:
        out_ += '(';
        Print(f_.KidIndex(node, 0));
        out_ += ')';
        break;
      case Kind::Call:
      case Kind::Unknown:
        out_ += node.kind == Kind::Call
                    ? FunctionAt(node.aux).name
                    : std::string_view(f_.texts[static_cast<std::size_t>(node.aux)]);
        out_ += '(';
        for (int i = 0; i < node.count; ++i) {
          if (i > 0) out_ += ',';
          Print(f_.KidIndex(node, i));
        }
        out_ += ')';
        break;
      case Kind::Missing:
        break;
    }
  }

  // The sheet prefix with its "!", or nothing for the host sheet.
  void PrintSheet(const SheetTarget& sheet) {
    if (sheet.kind == SheetTarget::Kind::Host) return;
    std::string name = sheet.sheetText;
    if (sheet.kind == SheetTarget::Kind::Local && host_.book != nullptr) {
      if (const Sheet* current = host_.book->SheetById(sheet.sheetId)) name = current->Name();
    }
    const std::string book = sheet.bookText.empty() ? "" : "[" + sheet.bookText + "]";
    if (NeedsQuotes(name)) {
      AppendQuoted(out_, book + name, '\'');
    } else {
      out_ += book;
      out_ += name;
    }
    out_ += '!';
  }

  // The row and column of a corner for the host cell; false when it falls off the sheet.
  bool Place(const RefCorner& corner, int& row, int& col) const {
    row = corner.rowAbs ? corner.row : host_.cell.row + corner.row;
    col = corner.colAbs ? corner.col : host_.cell.col + corner.col;
    return row >= 1 && row <= kMaxRow && col >= 1 && col <= kMaxCol;
  }

  void PrintCorner(const RefCorner& corner, int row, int col) {
    if (corner.colAbs) out_ += '$';
    out_ += ColumnLetters(col);
    if (corner.rowAbs) out_ += '$';
    out_ += std::to_string(row);
  }

  void PrintRef(const RefTarget& ref) {
    int row1, col1, row2, col2;
    const bool sheetGone =
        ref.sheet.kind == SheetTarget::Kind::Local &&
        (host_.book == nullptr || host_.book->SheetById(ref.sheet.sheetId) == nullptr);
    if (!Place(ref.first, row1, col1) || !Place(ref.last, row2, col2) || sheetGone) {
      out_ += "#REF!";
      return;
    }
    PrintSheet(ref.sheet);
    PrintCorner(ref.first, row1, col1);
    if (ref.isArea) {
      out_ += ':';
      PrintCorner(ref.last, row2, col2);
    }
  }

  const Formula& f_;
  const FormulaHost& host_;
  std::string out_;
};

}  // namespace

std::string FormulaText(const Formula& formula, const FormulaHost& host) {
  return Printer(formula, host).Run();
}

}  // namespace gustline::wb
