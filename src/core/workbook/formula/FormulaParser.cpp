#include <algorithm>
#include <cctype>
#include <optional>

#include "core/workbook/formula/FormulaAst.h"
#include "core/workbook/formula/FormulaLexer.h"
#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// Nesting deeper than these is refused, so that neither the parser nor the evaluator can
// run out of stack: parentheses, calls and signs, and the height of the operator tree.
constexpr int kMaxNesting = 100;
constexpr int kMaxHeight = 1000;

using Token = FormulaToken;
using TK = FormulaToken::Kind;
using Node = Formula::Node;
using Kind = Formula::Kind;

std::string_view Trim(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
    text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
    text.remove_suffix(1);
  return text;
}

// A cell reference word: "B24", "$B$24", "b$24". Columns A to IV, rows 1 to 16384.
std::optional<RefCorner> ReadCellWord(std::string_view word, const CellAddress& host) {
  std::size_t i = 0;
  RefCorner corner;
  if (i < word.size() && word[i] == '$') {
    corner.colAbs = true;
    ++i;
  }
  int col = 0;
  std::size_t letters = 0;
  while (i < word.size() && std::isalpha(static_cast<unsigned char>(word[i])) && letters < 3) {
    col = col * 26 + (std::toupper(static_cast<unsigned char>(word[i])) - 'A' + 1);
    ++i;
    ++letters;
  }
  if (letters == 0 || letters > 2 || col > kMaxCol) return std::nullopt;
  if (i < word.size() && word[i] == '$') {
    corner.rowAbs = true;
    ++i;
  }
  if (i == word.size() || word.size() - i > 5) return std::nullopt;
  int row = 0;
  for (; i < word.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(word[i]))) return std::nullopt;
    row = row * 10 + (word[i] - '0');
  }
  if (row < 1 || row > kMaxRow) return std::nullopt;
  corner.row = corner.rowAbs ? row : row - host.row;
  corner.col = corner.colAbs ? col : col - host.col;
  return corner;
}

// The book whose names a name is looked up among.
Workbook* NameBook(const SheetTarget& sheet, const FormulaHost& host) {
  switch (sheet.kind) {
    case SheetTarget::Kind::Link:
      return BookRegistry::Instance().FindById(sheet.bookId);
    case SheetTarget::Kind::Unbound:
      return nullptr;
    default:
      return host.book;
  }
}

// A sheet prefix as written, bound to a sheet of the host book, to another open book, or to
// nothing yet.
SheetTarget BindSheet(std::string book, std::string sheet, const FormulaHost& host) {
  SheetTarget target;
  target.bookText = std::move(book);
  target.sheetText = std::move(sheet);
  Workbook* owner = host.book;
  if (!target.bookText.empty()) {
    const std::string_view wanted = Trim(target.bookText);
    if (host.book == nullptr || !EqualNoCase(wanted, host.book->BookName())) {
      owner = BookRegistry::Instance().FindByName(wanted);
      if (owner == nullptr) {
        target.kind = SheetTarget::Kind::Unbound;
        return target;
      }
    }
  }
  if (owner != host.book) {
    target.kind = SheetTarget::Kind::Link;
    target.bookId = owner->Id();
    return target;
  }
  const int index = host.book ? host.book->FindSheet(target.sheetText) : 0;
  if (index == 0) {
    target.kind = SheetTarget::Kind::Missing;
  } else {
    target.kind = SheetTarget::Kind::Local;
    target.sheetId = host.book->GetSheet(index).Id();
  }
  return target;
}

class Parser {
 public:
  Parser(std::string_view text, const FormulaHost& host)
      : tokens_(TokenizeFormula(text)), host_(host) {}

  std::shared_ptr<const Formula> Run() {
    formula_ = std::make_shared<Formula>();
    formula_->nodes.reserve(tokens_.size());
    heights_.reserve(tokens_.size());
    formula_->root = ParseComparison(0);
    if (Peek().kind != TK::End) Fail("Unexpected text");
    return formula_;
  }

 private:
  const Token& Peek(std::size_t ahead = 0) const {
    return tokens_[std::min(pos_ + ahead, tokens_.size() - 1)];
  }
  const Token& Next() { return tokens_[std::min(pos_++, tokens_.size() - 1)]; }
  bool Accept(TK kind) {
    if (Peek().kind != kind) return false;
    ++pos_;
    return true;
  }

  [[noreturn]] void Fail(std::string_view what) const {
    throw FacilityError(errc::kFormulaSyntax,
                        std::string(what) + " at position " + std::to_string(Peek().position + 1));
  }

  void Enter(int depth) const {
    if (depth > kMaxNesting) Fail("Formula nested too deeply");
  }

  std::int32_t Add(Node node, std::initializer_list<std::int32_t> operands) {
    node.first = static_cast<std::int32_t>(formula_->kids.size());
    node.count = static_cast<std::uint16_t>(operands.size());
    int height = 0;
    for (std::int32_t operand : operands) {
      formula_->kids.push_back(operand);
      height = std::max(height, heights_[static_cast<std::size_t>(operand)]);
    }
    return Push(node, height + 1);
  }

  std::int32_t Push(const Node& node, int height) {
    if (height > kMaxHeight) Fail("Formula nested too deeply");
    formula_->nodes.push_back(node);
    heights_.push_back(height);
    return static_cast<std::int32_t>(formula_->nodes.size() - 1);
  }

  std::int32_t Leaf(Kind kind, std::int32_t aux = 0, double number = 0) {
    Node node{kind};
    node.aux = aux;
    node.number = number;
    return Push(node, 1);
  }

  std::int32_t Binary(BinaryOp op, std::int32_t left, std::int32_t right) {
    Node node{Kind::Binary};
    node.aux = static_cast<std::int32_t>(op);
    return Add(node, {left, right});
  }

  std::int32_t ParseComparison(int depth) {
    Enter(depth);
    std::int32_t left = ParseConcat(depth);
    for (;;) {
      BinaryOp op;
      switch (Peek().kind) {
        case TK::Eq:
          op = BinaryOp::Eq;
          break;
        case TK::Ne:
          op = BinaryOp::Ne;
          break;
        case TK::Lt:
          op = BinaryOp::Lt;
          break;
        case TK::Gt:
          op = BinaryOp::Gt;
          break;
        case TK::Le:
          op = BinaryOp::Le;
          break;
        case TK::Ge:
          op = BinaryOp::Ge;
          break;
        default:
          return left;
      }
      ++pos_;
      left = Binary(op, left, ParseConcat(depth));
    }
  }

  std::int32_t ParseConcat(int depth) {
    std::int32_t left = ParseAdditive(depth);
    while (Accept(TK::Ampersand)) left = Binary(BinaryOp::Concat, left, ParseAdditive(depth));
    return left;
  }

  std::int32_t ParseAdditive(int depth) {
    std::int32_t left = ParseMultiplicative(depth);
    for (;;) {
      if (Accept(TK::Plus)) {
        left = Binary(BinaryOp::Add, left, ParseMultiplicative(depth));
      } else if (Accept(TK::Minus)) {
        left = Binary(BinaryOp::Sub, left, ParseMultiplicative(depth));
      } else {
        return left;
      }
    }
  }

  std::int32_t ParseMultiplicative(int depth) {
    std::int32_t left = ParsePower(depth);
    for (;;) {
      if (Accept(TK::Star)) {
        left = Binary(BinaryOp::Mul, left, ParsePower(depth));
      } else if (Accept(TK::Slash)) {
        left = Binary(BinaryOp::Div, left, ParsePower(depth));
      } else {
        return left;
      }
    }
  }

  std::int32_t ParsePower(int depth) {
    std::int32_t left = ParsePercent(depth);
    while (Accept(TK::Caret)) left = Binary(BinaryOp::Pow, left, ParsePercent(depth));
    return left;
  }

  std::int32_t ParsePercent(int depth) {
    std::int32_t operand = ParseUnary(depth);
    while (Accept(TK::Percent)) {
      Node node{Kind::Unary};
      node.aux = static_cast<std::int32_t>(UnaryOp::Percent);
      operand = Add(node, {operand});
    }
    return operand;
  }

  std::int32_t ParseUnary(int depth) {
    UnaryOp op;
    if (Accept(TK::Minus)) {
      op = UnaryOp::Minus;
    } else if (Accept(TK::Plus)) {
      op = UnaryOp::Plus;
    } else {
      return ParseRange(depth);
    }
    Enter(depth + 1);
    Node node{Kind::Unary};
    node.aux = static_cast<std::int32_t>(op);
    return Add(node, {ParseUnary(depth + 1)});
  }

  std::int32_t ParseRange(int depth) {
    std::int32_t left = ParsePrimary(depth);
    while (Accept(TK::Colon)) {
      const std::int32_t right = ParsePrimary(depth);
      if (!FoldArea(left, right)) left = Binary(BinaryOp::Range, left, right);
    }
    return left;
  }

  // "A1:C16" and "Sheet1!A1:B2" become one area reference when the right side is a plain
  // cell without a sheet of its own.
  bool FoldArea(std::int32_t left, std::int32_t right) {
    const Node& l = formula_->nodes[static_cast<std::size_t>(left)];
    const Node& r = formula_->nodes[static_cast<std::size_t>(right)];
    if (l.kind != Kind::Ref || r.kind != Kind::Ref) return false;
    RefTarget& a = formula_->refs[static_cast<std::size_t>(l.aux)];
    const RefTarget& b = formula_->refs[static_cast<std::size_t>(r.aux)];
    if (a.isArea || b.isArea || b.sheet.kind != SheetTarget::Kind::Host) return false;
    if (static_cast<std::size_t>(r.aux) + 1 != formula_->refs.size()) return false;
    a.last = b.first;
    a.isArea = true;
    formula_->refs.pop_back();
    formula_->nodes.pop_back();
    heights_.pop_back();
    return true;
  }

  std::int32_t ParsePrimary(int depth) {
    const Token& token = Peek();
    switch (token.kind) {
      case TK::Number:
        ++pos_;
        return Leaf(Kind::Number, 0, token.number);
      case TK::String: {
        ++pos_;
        formula_->texts.push_back(token.text);
        return Leaf(Kind::Text, static_cast<std::int32_t>(formula_->texts.size() - 1));
      }
      case TK::Error: {
        ++pos_;
        const ErrorCode code = ErrorFromText(token.text).value_or(ErrorCode::Value);
        return Leaf(Kind::Error, static_cast<std::int32_t>(code));
      }
      case TK::LParen: {
        ++pos_;
        Enter(depth + 1);
        const std::int32_t inner = ParseComparison(depth + 1);
        if (!Accept(TK::RParen)) Fail("Missing )");
        return Add(Node{Kind::Paren}, {inner});
      }
      case TK::Bracket: {
        ++pos_;
        std::string sheet;
        if (Peek().kind == TK::Word || Peek().kind == TK::Quoted)
          sheet = Next().text;
        else
          Fail("Missing sheet after book");
        return ParseQualified(ResolveSheet(token.text, sheet));
      }
      case TK::Quoted: {
        ++pos_;
        std::string_view text = token.text;
        std::string book;
        if (!text.empty() && text.front() == '[') {
          const std::size_t close = text.find(']');
          if (close == std::string_view::npos) Fail("Missing ]");
          book = text.substr(1, close - 1);
          text.remove_prefix(close + 1);
        }
        return ParseQualified(ResolveSheet(book, std::string(text)));
      }
      case TK::Word:
        return ParseWord(depth);
      default:
        Fail(token.kind == TK::End ? "Unexpected end of formula" : "Unexpected token");
    }
  }

  std::int32_t ParseWord(int depth) {
    const Token& token = Next();
    if (Peek().kind == TK::LParen) return ParseCall(token.text, depth);
    if (Peek().kind == TK::Bang) return ParseQualified(ResolveSheet({}, token.text));
    if (EqualNoCase(token.text, "TRUE")) return Leaf(Kind::Boolean, 0, 1);
    if (EqualNoCase(token.text, "FALSE")) return Leaf(Kind::Boolean, 0, 0);
    return ReferenceOrName(SheetTarget{}, token.text);
  }

  // After a sheet prefix: "!" and a cell or a name.
  std::int32_t ParseQualified(SheetTarget sheet) {
    if (!Accept(TK::Bang)) Fail("Missing !");
    if (Peek().kind != TK::Word) Fail("Missing cell or name after !");
    return ReferenceOrName(std::move(sheet), Next().text);
  }

  std::int32_t ReferenceOrName(SheetTarget sheet, const std::string& word) {
    if (std::optional<RefCorner> corner = ReadCellWord(word, host_.cell)) {
      formula_->refs.push_back(RefTarget{std::move(sheet), *corner, *corner, false});
      return Leaf(Kind::Ref, static_cast<std::int32_t>(formula_->refs.size() - 1));
    }
    NameTarget name{std::move(sheet), -1, word};
    if (Workbook* book = NameBook(name.sheet, host_)) name.slot = book->Names().Slot(word);
    formula_->names.push_back(std::move(name));
    return Leaf(Kind::Name, static_cast<std::int32_t>(formula_->names.size() - 1));
  }

  SheetTarget ResolveSheet(std::string book, std::string sheet) {
    SheetTarget target = BindSheet(std::move(book), std::move(sheet), host_);
    if (target.kind == SheetTarget::Kind::Unbound) formula_->unboundLink = true;
    return target;
  }

  std::int32_t ParseCall(const std::string& name, int depth) {
    Enter(depth + 1);
    ++pos_;  // the "("
    std::vector<std::int32_t> args;
    if (!Accept(TK::RParen)) {
      for (;;) {
        if (Peek().kind == TK::Comma || Peek().kind == TK::RParen) {
          args.push_back(Leaf(Kind::Missing));
        } else {
          args.push_back(ParseComparison(depth + 1));
        }
        if (Accept(TK::RParen)) break;
        if (!Accept(TK::Comma)) Fail("Missing ) or ,");
      }
    }
    Node node{Kind::Call};
    if (const std::int32_t function = FindFunction(name); function >= 0) {
      const FunctionInfo& info = FunctionAt(function);
      const int count = static_cast<int>(args.size());
      if (count < info.minArgs || count > info.maxArgs)
        Fail("Wrong number of arguments to " + std::string(info.name));
      node.aux = function;
    } else {
      if (args.size() > 255) Fail("Too many arguments");
      node.kind = Kind::Unknown;
      formula_->texts.push_back(name);
      node.aux = static_cast<std::int32_t>(formula_->texts.size() - 1);
    }
    node.first = static_cast<std::int32_t>(formula_->kids.size());
    node.count = static_cast<std::uint16_t>(args.size());
    int height = 0;
    for (std::int32_t arg : args) {
      formula_->kids.push_back(arg);
      height = std::max(height, heights_[static_cast<std::size_t>(arg)]);
    }
    return Push(node, height + 1);
  }

  std::vector<Token> tokens_;
  std::size_t pos_ = 0;
  FormulaHost host_;
  std::shared_ptr<Formula> formula_;
  std::vector<int> heights_;
};

}  // namespace

std::shared_ptr<const Formula> ParseFormula(std::string_view text, const FormulaHost& host) {
  return Parser(text, host).Run();
}

namespace {

bool OnSheet(const RefCorner& corner, const CellAddress& host) {
  const int row = corner.rowAbs ? corner.row : host.row + corner.row;
  const int col = corner.colAbs ? corner.col : host.col + corner.col;
  return row >= 1 && row <= kMaxRow && col >= 1 && col <= kMaxCol;
}

bool SameBinding(const SheetTarget& a, const SheetTarget& b) {
  return a.kind == b.kind && a.sheetId == b.sheetId && a.bookId == b.bookId &&
         a.bookText == b.bookText && a.sheetText == b.sheetText;
}

// The sheet prefix bound again from the text that the printer writes for it: a sheet of the
// host book under its present name, otherwise the name as written. False when that text
// would not read back as the same book and sheet.
bool RebindSheet(const SheetTarget& sheet, const FormulaHost& host, SheetTarget& out) {
  if (sheet.kind == SheetTarget::Kind::Host) {
    out = sheet;
    return true;
  }
  if (sheet.bookText.find(']') != std::string::npos) return false;
  std::string name = sheet.sheetText;
  if (sheet.kind == SheetTarget::Kind::Local && host.book != nullptr) {
    if (const Sheet* current = host.book->SheetById(sheet.sheetId)) name = current->Name();
  }
  out = BindSheet(sheet.bookText, std::move(name), host);
  return true;
}

}  // namespace

std::shared_ptr<const Formula> RebindFormula(const std::shared_ptr<const Formula>& formula,
                                             const FormulaHost& host) {
  const Formula& source = *formula;
  if (source.refs.empty() && source.names.empty()) return nullptr;
  std::shared_ptr<Formula> copy;
  const auto target = [&]() -> Formula& {
    if (!copy) copy = std::make_shared<Formula>(source);
    return *copy;
  };
  SheetTarget bound;
  for (std::size_t i = 0; i < source.refs.size(); ++i) {
    const RefTarget& ref = source.refs[i];
    const bool sheetGone =
        ref.sheet.kind == SheetTarget::Kind::Local &&
        (host.book == nullptr || host.book->SheetById(ref.sheet.sheetId) == nullptr);
    if (sheetGone || !OnSheet(ref.first, host.cell) || !OnSheet(ref.last, host.cell))
      return nullptr;
    if (!RebindSheet(ref.sheet, host, bound)) return nullptr;
    if (!SameBinding(bound, ref.sheet)) target().refs[i].sheet = bound;
  }
  for (std::size_t i = 0; i < source.names.size(); ++i) {
    const NameTarget& name = source.names[i];
    if (!RebindSheet(name.sheet, host, bound)) return nullptr;
    Workbook* book = NameBook(bound, host);
    const int slot = book != nullptr ? book->Names().Slot(name.text) : -1;
    if (SameBinding(bound, name.sheet) && slot == name.slot) continue;
    target().names[i].sheet = bound;
    target().names[i].slot = slot;
  }
  if (!copy) return formula;
  const auto unbound = [](const SheetTarget& sheet) {
    return sheet.kind == SheetTarget::Kind::Unbound;
  };
  copy->unboundLink = std::any_of(copy->refs.begin(), copy->refs.end(),
                                  [&](const RefTarget& ref) { return unbound(ref.sheet); }) ||
                      std::any_of(copy->names.begin(), copy->names.end(),
                                  [&](const NameTarget& name) { return unbound(name.sheet); });
  return copy;
}

bool ReadsClock(const Formula& formula) {
  static const std::int32_t now = FindFunction("NOW");
  return std::any_of(formula.nodes.begin(), formula.nodes.end(), [](const Formula::Node& node) {
    return node.kind == Formula::Kind::Call && node.aux == now;
  });
}

bool ReadsNothing(const Formula& formula) {
  return formula.refs.empty() && formula.names.empty() && !ReadsClock(formula);
}

bool HasUnboundLink(const Formula& formula) {
  return formula.unboundLink;
}

}  // namespace gustline::wb
