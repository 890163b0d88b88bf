#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbook/formula/Formula.h"

namespace gustline::wb {

enum class BinaryOp : std::uint8_t {
  Add,
  Sub,
  Mul,
  Div,
  Pow,
  Concat,
  Eq,
  Ne,
  Lt,
  Gt,
  Le,
  Ge,
  Range
};
enum class UnaryOp : std::uint8_t { Minus, Plus, Percent };

// Which sheet (and book) a reference or name stands on.
struct SheetTarget {
  enum class Kind : std::uint8_t {
    Host,     // no sheet given: the sheet of the host cell
    Local,    // a sheet of the host book, by id
    Link,     // another open book, by id; the sheet by name when the cell is read
    Unbound,  // a bracket that named no open book when parsed
    Missing,  // a sheet name that the book did not hold when parsed
  };
  Kind kind = Kind::Host;
  std::uint32_t sheetId = 0;
  std::uint64_t bookId = 0;
  std::string bookText;   // the text in brackets, empty without brackets
  std::string sheetText;  // the sheet as written, empty without a sheet
};

// One corner of a reference: absolute parts hold the row or column, relative parts the
// offset from the host cell.
struct RefCorner {
  int row = 0;
  int col = 0;
  bool rowAbs = false;
  bool colAbs = false;
};

struct RefTarget {
  SheetTarget sheet;
  RefCorner first;
  RefCorner last;
  bool isArea = false;
};

struct NameTarget {
  SheetTarget sheet;  // Host or Local: the host book's names; Link: the linked book's
  int slot = -1;
  std::string text;  // as written
};

// A formula as a flat array of nodes; the operands of a node are listed in `kids`.
class Formula {
 public:
  enum class Kind : std::uint8_t {
    Number,
    Text,     // aux: index into texts
    Boolean,  // number: 1 or 0
    Error,    // aux: the ErrorCode
    Ref,      // aux: index into refs
    Name,     // aux: index into names
    Unary,    // aux: UnaryOp; one kid
    Binary,   // aux: BinaryOp; two kids
    Paren,    // one kid
    Call,     // aux: the function's index in the function table
    Unknown,  // an unknown function: aux indexes texts (its name as written)
    Missing,  // an omitted argument
  };

  struct Node {
    Kind kind;
    std::uint16_t count = 0;  // number of kids
    std::int32_t aux = 0;
    std::int32_t first = 0;  // first kid in kids
    double number = 0;
  };

  std::vector<Node> nodes;
  std::vector<std::int32_t> kids;
  std::vector<std::string> texts;
  std::vector<RefTarget> refs;
  std::vector<NameTarget> names;
  std::int32_t root = 0;
  bool unboundLink = false;

  const Node& Kid(const Node& node, int i) const {
    return nodes[static_cast<std::size_t>(KidIndex(node, i))];
  }
  std::int32_t KidIndex(const Node& node, int i) const {
    return kids[static_cast<std::size_t>(node.first) + static_cast<std::size_t>(i)];
  }
};

class Evaluator;
struct Operand;

// The body of a function: it evaluates only the arguments it needs.
using FunctionBody = Operand (*)(Evaluator& ev, const Formula::Node& node);

// A function of the language: its spelling, the bounds of its argument count and its body.
struct FunctionInfo {
  std::string_view name;
  int minArgs;
  int maxArgs;
  FunctionBody body;
};

// The index in the function table of the function of a name, without regard to case; -1 when
// the language has none.
std::int32_t FindFunction(std::string_view name);
const FunctionInfo& FunctionAt(std::int32_t index);

}  // namespace gustline::wb
