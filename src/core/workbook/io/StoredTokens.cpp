#include "core/workbook/io/StoredTokens.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>

#include "core/workbook/io/SheetFileCodes.h"
#include "core/workbook/io/StoredFunctions.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// How tightly a piece of text binds, as our parser ranks its operators: an operand needs
// parentheses where it binds less tightly than its operator asks.
enum Level : int { kCompare = 1, kConcat, kAdd, kMul, kPower, kPercent, kUnary, kRange, kOperand };

// Beyond these our parser refuses a formula anyway; stopping here keeps hostile tokens
// from building huge texts.
constexpr int kMaxHeight = 1000;
constexpr std::size_t kMaxText = 65536;

struct Piece {
  std::string text;
  int level = kOperand;
  int height = 1;
};

struct BinaryToken {
  std::string_view text;
  int level;
};

// Tokens 0x03 to 0x11; an empty text is an operator our formulas do not have.
constexpr BinaryToken kBinary[] = {
    {"+", kAdd},     {"-", kAdd},      {"*", kMul},      {"/", kMul},     {"^", kPower},
    {"&", kConcat},  {"<", kCompare},  {"<=", kCompare}, {"=", kCompare}, {">=", kCompare},
    {">", kCompare}, {"<>", kCompare}, {"", 0},          {"", 0},         {":", kRange},
};

std::string Quoted(std::string_view text, char quote) {
  std::string out(1, quote);
  for (const char c : text) {
    out += c;
    if (c == quote) out += quote;
  }
  out += quote;
  return out;
}

std::string Hex(unsigned value) {
  char text[8];
  std::snprintf(text, sizeof text, "0x%02X", value);
  return text;
}

class TokenDecoder {
 public:
  TokenDecoder(std::string_view tokens, const TokenContext& context, const Record& record,
               std::vector<std::string>& usedNames)
      : context_(context),
        tokens_{record.type, record.offset, tokens},
        in_(tokens_),
        usedNames_(usedNames) {}

  std::string Run() {
    while (in_.Left() > 0) Step(in_.U8());
    if (stack_.size() != 1)
      in_.Fail("the formula's tokens leave " + std::to_string(stack_.size()) +
               " values instead of one");
    return std::move(stack_.back().text);
  }

 private:
  void Step(std::uint8_t token) {
    if (token >= 0x03 && token <= 0x11) return Binary(kBinary[token - 0x03]);
    switch (token) {
      case 0x12:
        return Prefix("+");
      case 0x13:
        return Prefix("-");
      case 0x14: {
        Piece operand = Pop();
        return Push(Wrap(operand, kPercent) + "%", kPercent, operand.height + 1);
      }
      case 0x15: {
        Piece operand = Pop();
        return Push("(" + operand.text + ")", kOperand, operand.height + 1);
      }
      case 0x16:
        return Push("", kOperand, 1);
      case 0x17:
        return Push(Quoted(in_.Text(in_.U8()), '"'), kOperand, 1);
      case 0x19:
        return Attribute();
      case 0x1C: {
        const auto code = ErrorOfByte(in_.U8());
        if (!code) in_.Fail("an error token with an unknown code");
        return Push(std::string(ErrorText(*code)), kOperand, 1);
      }
      case 0x1D:
        return Push(in_.U8() != 0 ? "TRUE" : "FALSE", kOperand, 1);
      case 0x1E:
        return Push(std::to_string(in_.U16()), kOperand, 1);
      case 0x1F:
        return Number(in_.F64());
      default:
        break;
    }
    if (token >= 0x20 && token < 0x80)
      return Operand(static_cast<std::uint8_t>((token & 0x1F) | 0x20));
    in_.Fail("an unknown formula token " + Hex(token));
  }

  // The tokens of references, names and calls, whatever class of value they ask for.
  void Operand(std::uint8_t base) {
    switch (base) {
      case 0x21:
        return Function(in_.U16(), std::nullopt);
      case 0x22: {
        const int count = in_.U8() & 0x7F;
        return Function(in_.U16() & 0x7FFF, count);
      }
      case 0x23: {
        const std::uint16_t position = in_.U16();
        in_.Skip(12);
        if (position == 0 || position > context_.names.size())
          in_.Fail("a name token for name " + std::to_string(position) + " of " +
                   std::to_string(context_.names.size()));
        return UseName(context_.names[position - 1u], "");
      }
      case 0x24: {
        const std::uint16_t row = in_.U16();
        return Push(Corner(row, in_.U8()), kOperand, 1);
      }
      case 0x25:
        return Area("");
      case 0x26:
      case 0x27:
      case 0x28:
        return in_.Skip(6);  // the value of the expression that follows stays on the stack
      case 0x29:
      case 0x2E:
      case 0x2F:
        return in_.Skip(2);
      case 0x2A:
        in_.Skip(3);
        return Push("#REF!", kOperand, 1);
      case 0x2B:
        in_.Skip(6);
        return Push("#REF!", kOperand, 1);
      case 0x2C:
        return ShiftedRef(false);
      case 0x2D:
        return ShiftedRef(true);
      case 0x39:
        return LinkedName();
      case 0x3A:
      case 0x3B:
        return Reference3d(base == 0x3B);
      case 0x3C:
        in_.Skip(17);
        return Push("#REF!", kOperand, 1);
      case 0x3D:
        in_.Skip(20);
        return Push("#REF!", kOperand, 1);
      default:
        in_.Fail("a formula token " + Hex(base) + " that our formulas do not have");
    }
  }

  void Attribute() {
    const std::uint8_t flags = in_.U8();
    if (flags & 0x04) {
      const std::uint16_t choices = in_.U16();
      in_.Skip((static_cast<std::size_t>(choices) + 1) * 2);
    } else {
      in_.Skip(2);
    }
    if (flags & 0x10) Call("SUM", 1);
  }

  void Function(int number, std::optional<int> count) {
    const StoredFunction* function = StoredFunctionOf(number);
    if (function == nullptr) in_.Fail("an unknown function number " + std::to_string(number));
    if (!count && function->arguments == kVariableArguments)
      in_.Fail(std::string(function->name) + " without its count of arguments");
    Call(function->name, count.value_or(function->arguments));
  }

  void Call(std::string_view name, int count) {
    if (static_cast<std::size_t>(count) > stack_.size())
      in_.Fail(std::string(name) + " with fewer arguments than it takes");
    std::string text = std::string(name) + "(";
    int height = 0;
    const std::size_t first = stack_.size() - static_cast<std::size_t>(count);
    for (std::size_t i = first; i < stack_.size(); ++i) {
      if (i > first) text += ',';
      text += stack_[i].text;
      height = std::max(height, stack_[i].height);
    }
    stack_.resize(first);
    Push(text + ")", kOperand, height + 1);
  }

  void Number(double value) {
    if (!std::isfinite(value)) in_.Fail("a number token that is not finite");
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, value);
    Push(std::string(text, result.ptr), value < 0 ? kUnary : kOperand, 1);
  }

  void Prefix(std::string_view sign) {
    Piece operand = Pop();
    Push(std::string(sign) + Wrap(operand, kUnary), kUnary, operand.height + 1);
  }

  void Binary(const BinaryToken& op) {
    if (op.text.empty()) in_.Fail("an intersection or union of ranges");
    Piece right = Pop();
    Piece left = Pop();
    // Operators group from the left: a right operand of the same rank keeps its parentheses.
    std::string text = Wrap(left, op.level) + std::string(op.text) + Wrap(right, op.level + 1);
    Push(std::move(text), op.level, std::max(left.height, right.height) + 1);
  }

  static std::string Wrap(const Piece& piece, int level) {
    return piece.level < level ? "(" + piece.text + ")" : piece.text;
  }

  static std::string CornerText(int row, int col, bool rowRelative, bool colRelative) {
    return (colRelative ? "" : "$") + ColumnLetters(col) + (rowRelative ? "" : "$") +
           std::to_string(row);
  }

  // A row field carries the relative flags in its top bits; a relative part prints bare.
  static std::string Corner(std::uint16_t rowField, std::uint8_t col) {
    return CornerText((rowField & 0x3FFF) + 1, col + 1, (rowField & 0x8000) != 0,
                      (rowField & 0x4000) != 0);
  }

  // The same, where a relative part is a signed offset from the host cell; nothing when
  // the cell falls off the sheet.
  std::optional<std::string> ShiftedCorner(std::uint16_t rowField, std::uint8_t colField) const {
    const bool rowRelative = (rowField & 0x8000) != 0;
    const bool colRelative = (rowField & 0x4000) != 0;
    const int rowBits = rowField & 0x3FFF;
    const int row = rowRelative
                        ? context_.host.row + (rowBits >= 0x2000 ? rowBits - 0x4000 : rowBits)
                        : rowBits + 1;
    const int col =
        colRelative ? context_.host.col + static_cast<std::int8_t>(colField) : colField + 1;
    if (row < 1 || row > kMaxRow || col < 1 || col > kMaxCol) return std::nullopt;
    return CornerText(row, col, rowRelative, colRelative);
  }

  void Area(const std::string& prefix) {
    const std::uint16_t firstRow = in_.U16();
    const std::uint16_t lastRow = in_.U16();
    const std::uint8_t firstCol = in_.U8();
    const std::uint8_t lastCol = in_.U8();
    Push(prefix + Corner(firstRow, firstCol) + ":" + Corner(lastRow, lastCol), kOperand, 1);
  }

  // A reference whose relative parts are offsets from the host cell.
  void ShiftedRef(bool area) {
    const std::uint16_t firstRow = in_.U16();
    const std::uint16_t lastRow = area ? in_.U16() : firstRow;
    const std::uint8_t firstCol = in_.U8();
    const std::uint8_t lastCol = area ? in_.U8() : firstCol;
    const auto first = ShiftedCorner(firstRow, firstCol);
    const auto last = ShiftedCorner(lastRow, lastCol);
    if (!first || !last) return Push("#REF!", kOperand, 1);
    Push(area ? *first + ":" + *last : *first, kOperand, 1);
  }

  const StoredLink& LinkOf(std::int16_t index) const {
    const int position = std::abs(static_cast<int>(index));
    if (position == 0 || static_cast<std::size_t>(position) > context_.links.size())
      in_.Fail("link " + std::to_string(index) + " where the stream has " +
               std::to_string(context_.links.size()));
    return context_.links[static_cast<std::size_t>(position - 1)];
  }

  bool IsOwnBook(const StoredLink& link) const {
    return link.book.empty() || EqualNoCase(link.book, context_.bookName);
  }

  void LinkedName() {
    const StoredLink& link = LinkOf(in_.I16());
    in_.Skip(8);
    const std::uint16_t position = in_.U16();
    in_.Skip(12);
    if (position == 0 || position > link.names.size())
      in_.Fail("linked name " + std::to_string(position) + " of " +
               std::to_string(link.names.size()));
    const std::string& name = link.names[position - 1u];
    UseName(name, IsOwnBook(link) ? "" : Quoted("[" + link.book + "]" + link.sheet, '\'') + "!");
  }

  void UseName(const std::string& name, const std::string& prefix) {
    if (prefix.empty()) usedNames_.push_back(name);
    Push(prefix + name, kOperand, 1);
  }

  void Reference3d(bool area) {
    const StoredLink& link = LinkOf(in_.I16());
    in_.Skip(8);
    const std::uint16_t firstSheet = in_.U16();
    const std::uint16_t lastSheet = in_.U16();
    std::string prefix;
    if (IsOwnBook(link)) {
      if (firstSheet != lastSheet) in_.Fail("a reference across several sheets");
      if (firstSheet >= context_.sheets.size())
        in_.Fail("sheet index " + std::to_string(firstSheet) + " out of range: the book has " +
                 std::to_string(context_.sheets.size()) + " sheets");
      prefix = Quoted(context_.sheets[firstSheet], '\'') + "!";
    } else {
      prefix = Quoted("[" + link.book + "]" + link.sheet, '\'') + "!";
    }
    if (area) return Area(prefix);
    const std::uint16_t row = in_.U16();
    Push(prefix + Corner(row, in_.U8()), kOperand, 1);
  }

  Piece Pop() {
    if (stack_.empty()) in_.Fail("an operator without its operands");
    Piece piece = std::move(stack_.back());
    stack_.pop_back();
    return piece;
  }

  void Push(std::string text, int level, int height) {
    if (height > kMaxHeight) in_.Fail("a formula nested too deeply");
    if (text.size() > kMaxText) in_.Fail("a formula too long");
    stack_.push_back({std::move(text), level, height});
  }

  const TokenContext& context_;
  Record tokens_;
  RecordReader in_;
  std::vector<std::string>& usedNames_;
  std::vector<Piece> stack_;
};

}  // namespace

std::string TokenFormulaText(std::string_view tokens, const TokenContext& context,
                             const Record& record, std::vector<std::string>& usedNames) {
  return TokenDecoder(tokens, context, record, usedNames).Run();
}

}  // namespace gustline::wb
