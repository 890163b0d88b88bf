#include "core/workbook/recalc/Recalc.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>

#include "core/workbook/formula/Evaluator.h"
#include "core/workbook/formula/FormulaAst.h"
#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/recalc/NameValueCache.h"

namespace gustline::wb {
namespace {

// The formula cells of one book, the edges from each to the formula cells it reads.
class DependencyGraph {
 public:
  explicit DependencyGraph(Workbook& book) : book_(book) {
    byColumn_.resize(static_cast<std::size_t>(book.SheetCount()));
    for (int s = 0; s < book.SheetCount(); ++s) {
      auto& columns = byColumn_[static_cast<std::size_t>(s)];
      book.GetSheet(s + 1).ForEachCell([&](int row, int col, const Cell& cell) {
        if (!cell.IsFormula()) return;
        if (columns.size() <= static_cast<std::size_t>(col))
          columns.resize(static_cast<std::size_t>(col) + 1);
        auto& rows = columns[static_cast<std::size_t>(col)];
        rows.resize(static_cast<std::size_t>(row), kNoNode);
        rows[static_cast<std::size_t>(row) - 1] = static_cast<int>(nodes.size());
        nodes.push_back({s, row, col});
      });
    }
    edgeStart.reserve(nodes.size() + 1);
    for (const RecalcState::Item& item : nodes) {
      edgeStart.push_back(static_cast<int>(edges.size()));
      const Cell* cell = book.GetSheet(item.sheet + 1).Find(item.row, item.col);
      Collect(*cell->formula, FormulaHost{&book, item.sheet, CellAddress{item.row, item.col}}, 0,
              edges);
    }
    edgeStart.push_back(static_cast<int>(edges.size()));
  }

  std::vector<RecalcState::Item> nodes;
  std::vector<int> edgeStart;
  std::vector<int> edges;

 private:
  static constexpr int kNoNode = -1;

  void Collect(const Formula& formula, const FormulaHost& host, int depth, std::vector<int>& out) {
    for (const RefTarget& ref : formula.refs) AddArea(ref, host, out);
    if (depth >= kMaxNameDepth) return;
    for (const NameTarget& name : formula.names) {
      if (name.sheet.kind == SheetTarget::Kind::Link ||
          name.sheet.kind == SheetTarget::Kind::Unbound || name.slot < 0 ||
          name.slot >= book_.Names().SlotCount())
        continue;
      auto memo = nameEdges_.find(name.slot);
      if (memo == nameEdges_.end()) {
        std::vector<int> found;
        const DefinedNames::Entry& entry = book_.Names().At(name.slot);
        if (entry.defined && entry.formula) {
          Collect(*entry.formula, FormulaHost{&book_, 0, CellAddress{1, 1}}, depth + 1, found);
        }
        // Each cell once: names that use a name twice would otherwise double the list.
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end()), found.end());
        memo = nameEdges_.emplace(name.slot, std::move(found)).first;
      }
      out.insert(out.end(), memo->second.begin(), memo->second.end());
    }
  }

  void AddArea(const RefTarget& ref, const FormulaHost& host, std::vector<int>& out) const {
    int sheet = -1;
    if (ref.sheet.kind == SheetTarget::Kind::Host) sheet = host.sheet;
    if (ref.sheet.kind == SheetTarget::Kind::Local) sheet = book_.SheetIndexById(ref.sheet.sheetId);
    if (sheet < 0 || sheet >= static_cast<int>(byColumn_.size())) return;
    const auto rowOf = [&](const RefCorner& c) { return c.rowAbs ? c.row : host.cell.row + c.row; };
    const auto colOf = [&](const RefCorner& c) { return c.colAbs ? c.col : host.cell.col + c.col; };
    const int firstRow = std::min(rowOf(ref.first), rowOf(ref.last));
    const int lastRow = std::max(rowOf(ref.first), rowOf(ref.last));
    const int firstCol = std::max(1, std::min(colOf(ref.first), colOf(ref.last)));
    const int lastCol = std::max(colOf(ref.first), colOf(ref.last));
    const auto& columns = byColumn_[static_cast<std::size_t>(sheet)];
    for (int col = firstCol; col <= lastCol && col < static_cast<int>(columns.size()); ++col) {
      const auto& rows = columns[static_cast<std::size_t>(col)];
      const int last = std::min(lastRow, static_cast<int>(rows.size()));
      for (int row = std::max(firstRow, 1); row <= last; ++row) {
        const int node = rows[static_cast<std::size_t>(row) - 1];
        if (node != kNoNode) out.push_back(node);
      }
    }
  }

  Workbook& book_;
  // sheet -> column -> row - 1 -> the node of the formula cell there, or kNoNode. A direct
  // index: the formula rows of a report's tables are dense, and every cell looks up its row.
  std::vector<std::vector<std::vector<int>>> byColumn_;
  std::unordered_map<int, std::vector<int>> nameEdges_;
};

// The books that a formula reads through links, by id.
void AddLinkedBooks(const Formula& formula, std::vector<RecalcState::Link>& links) {
  const auto add = [&links](const SheetTarget& sheet) {
    if (sheet.kind != SheetTarget::Kind::Link) return;
    const bool known = std::any_of(links.begin(), links.end(), [&](const RecalcState::Link& link) {
      return link.bookId == sheet.bookId;
    });
    if (!known) links.push_back({sheet.bookId, 0});
  };
  for (const RefTarget& ref : formula.refs) add(ref.sheet);
  for (const NameTarget& name : formula.names) add(name.sheet);
}

// The books that the formula cells and the names of a book read through links.
std::vector<RecalcState::Link> LinkedBooks(const Workbook& book,
                                           const std::vector<RecalcState::Item>& items) {
  std::vector<RecalcState::Link> links;
  const Formula* last = nullptr;
  for (const RecalcState::Item& item : items) {
    const Cell* cell = book.GetSheet(item.sheet + 1).Find(item.row, item.col);
    // The rows that CopyDown fills share one formula.
    if (cell->formula.get() == last) continue;
    last = cell->formula.get();
    AddLinkedBooks(*last, links);
  }
  for (int slot = 0; slot < book.Names().SlotCount(); ++slot)
    if (const auto& formula = book.Names().At(slot).formula) AddLinkedBooks(*formula, links);
  return links;
}

// The formula cell of an item that calculation may evaluate, or null.
Cell* FormulaCellOf(Workbook& book, const RecalcState::Item& item) {
  if (item.sheet >= book.SheetCount()) return nullptr;
  Cell* cell = book.GetSheet(item.sheet + 1).Find(item.row, item.col);
  if (cell == nullptr || !cell->IsFormula() || HasUnboundLink(*cell->formula)) return nullptr;
  return cell;
}

Value EvaluateItem(Workbook& book, const Cell& cell, const RecalcState::Item& item) {
  return Evaluate(*cell.formula, FormulaHost{&book, item.sheet, {item.row, item.col}});
}

// Keeps a new value in the cell; false when it is the value the cell had. `delta` gets the
// change of a number, or infinity for any other change.
bool Store(Cell& cell, Value value, double& delta) {
  delta = 0;
  if (value == cell.value) return false;
  delta = value.IsNumber() && cell.value.IsNumber()
              ? std::fabs(value.AsNumber() - cell.value.AsNumber())
              : std::numeric_limits<double>::infinity();
  cell.value = std::move(value);
  ForgetNameValues();
  return true;
}

// Evaluates one formula cell into its cached value; false when the cell keeps its value.
bool Calculate(Workbook& book, const RecalcState::Item& item, double& delta) {
  delta = 0;
  Cell* cell = FormulaCellOf(book, item);
  return cell != nullptr && Store(*cell, EvaluateItem(book, *cell, item), delta);
}

// Calculates a circular group in the order in which its cells actually read each other: a
// cell that read a member not yet calculated in this pass waits until that member is done.
// A table whose rows refer both ways under an IF (shear from the row above or below, by
// Order) is circular only on paper and settles in one pass this way. False when the reads
// themselves go round; the members done by then keep their new values.
class ReadOrder : public CellReadObserver {
 public:
  ReadOrder(Workbook& book, const std::vector<RecalcState::Item>& members)
      : book_(book), members_(members), state_(members.size(), kWaiting) {
    sheets_.reserve(static_cast<std::size_t>(book.SheetCount()));
    for (int s = 1; s <= book.SheetCount(); ++s) sheets_.push_back(&book.GetSheet(s));
    where_.reserve(members.size());
    for (std::size_t i = 0; i < members.size(); ++i) where_.emplace(Key(members[i]), i);
  }

  bool Run(bool& changed) {
    CellReadObserver*& observer = CurrentCellReadObserver();
    CellReadObserver* const outer = observer;
    observer = this;
    const bool settled = Settle(changed);
    observer = outer;
    return settled;
  }

  void Read(const Sheet& sheet, int row, int col) override {
    if (missing_ != kNone) return;
    const auto s = std::find(sheets_.begin(), sheets_.end(), &sheet);
    if (s == sheets_.end()) return;
    const auto it = where_.find(Key({static_cast<std::int32_t>(s - sheets_.begin()), row, col}));
    if (it != where_.end() && state_[it->second] != kDone) missing_ = it->second;
  }

 private:
  enum State : char { kWaiting, kOnStack, kDone };
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  static std::uint64_t Key(const RecalcState::Item& item) {
    return (static_cast<std::uint64_t>(item.sheet) << 48) |
           (static_cast<std::uint64_t>(static_cast<std::uint32_t>(item.row)) << 24) |
           static_cast<std::uint32_t>(item.col);
  }

  bool Settle(bool& changed) {
    // Names kept before the group started were read unseen by this order.
    ForgetNameValues();
    std::vector<std::size_t> stack;
    double delta = 0;
    for (std::size_t first = 0; first < members_.size(); ++first) {
      if (state_[first] == kDone) continue;
      stack.push_back(first);
      while (!stack.empty()) {
        const std::size_t at = stack.back();
        state_[at] = kOnStack;
        Cell* cell = FormulaCellOf(book_, members_[at]);
        missing_ = kNone;
        Value value = cell ? EvaluateItem(book_, *cell, members_[at]) : Value();
        // Names evaluated with a member not yet done would keep its old value.
        if (missing_ != kNone) ForgetNameValues();
        if (missing_ == kNone) {
          if (cell) changed |= Store(*cell, std::move(value), delta);
          state_[at] = kDone;
          stack.pop_back();
        } else if (state_[missing_] == kOnStack) {
          return false;
        } else {
          stack.push_back(missing_);
        }
      }
    }
    return true;
  }

  Workbook& book_;
  const std::vector<RecalcState::Item>& members_;
  std::vector<State> state_;
  std::vector<const Sheet*> sheets_;
  std::unordered_map<std::uint64_t, std::size_t> where_;
  std::size_t missing_ = kNone;
};

// A cycle without iteration: every cell of it shows #VALUE!.
bool MarkCycle(Workbook& book, const std::vector<RecalcState::Item>& items) {
  bool changed = false;
  const Value error = Value::Error(ErrorCode::Value);
  for (const RecalcState::Item& item : items) {
    if (item.sheet >= book.SheetCount()) continue;
    Cell* cell = book.GetSheet(item.sheet + 1).Find(item.row, item.col);
    if (cell == nullptr || !cell->IsFormula() || cell->value == error) continue;
    cell->value = error;
    changed = true;
  }
  if (changed) ForgetNameValues();
  return changed;
}

}  // namespace

RecalcState& RecalcState::Of(Workbook& book) {
  if (!book.recalc_) book.recalc_ = std::make_unique<RecalcState>();
  return *book.recalc_;
}

void RecalcState::BuildOrder(Workbook& book, RecalcState& state) {
  const DependencyGraph graph(book);
  const int count = static_cast<int>(graph.nodes.size());
  state.items.clear();
  state.groups.clear();
  state.items.reserve(graph.nodes.size());

  // Tarjan's strongly connected components, with an explicit stack of frames. A component
  // is complete only after every component it reads, so they come out in evaluation order.
  std::vector<int> index(graph.nodes.size(), -1);
  std::vector<int> low(graph.nodes.size(), 0);
  std::vector<char> onStack(graph.nodes.size(), 0);
  std::vector<int> stack;
  struct Frame {
    int node;
    int edge;
  };
  std::vector<Frame> frames;
  int counter = 0;
  const auto visit = [&](int node) {
    index[static_cast<std::size_t>(node)] = low[static_cast<std::size_t>(node)] = counter++;
    stack.push_back(node);
    onStack[static_cast<std::size_t>(node)] = 1;
    frames.push_back({node, graph.edgeStart[static_cast<std::size_t>(node)]});
  };
  for (int start = 0; start < count; ++start) {
    if (index[static_cast<std::size_t>(start)] >= 0) continue;
    visit(start);
    while (!frames.empty()) {
      const int node = frames.back().node;
      const auto n = static_cast<std::size_t>(node);
      if (frames.back().edge < graph.edgeStart[n + 1]) {
        const int next = graph.edges[static_cast<std::size_t>(frames.back().edge++)];
        const auto w = static_cast<std::size_t>(next);
        if (index[w] < 0) {
          visit(next);
        } else if (onStack[w]) {
          low[n] = std::min(low[n], index[w]);
        }
        continue;
      }
      if (low[n] == index[n]) {
        const auto begin = static_cast<std::uint32_t>(state.items.size());
        int member;
        do {
          member = stack.back();
          stack.pop_back();
          onStack[static_cast<std::size_t>(member)] = 0;
          state.items.push_back(graph.nodes[static_cast<std::size_t>(member)]);
        } while (member != node);
        const auto end = static_cast<std::uint32_t>(state.items.size());
        bool cyclic = end - begin > 1;
        for (int e = graph.edgeStart[n]; !cyclic && e < graph.edgeStart[n + 1]; ++e)
          cyclic = graph.edges[static_cast<std::size_t>(e)] == node;
        state.groups.push_back({begin, end, cyclic});
      }
      frames.pop_back();
      if (!frames.empty()) {
        const auto parent = static_cast<std::size_t>(frames.back().node);
        low[parent] = std::min(low[parent], low[n]);
      }
    }
  }
  state.links = LinkedBooks(book, graph.nodes);
  state.orderValid = true;
}

bool RecalcState::LinkChanged() const {
  std::vector<std::uint64_t> visited;
  return LinkChanged(visited);
}

bool RecalcState::LinkChanged(std::vector<std::uint64_t>& visited) const {
  const BookRegistry& registry = BookRegistry::Instance();
  for (const Link& link : links) {
    Workbook* linked = registry.FindById(link.bookId);
    if ((linked != nullptr ? linked->ChangeCount() : 0) != link.seenChangeCount) return true;
    if (linked == nullptr ||
        std::find(visited.begin(), visited.end(), link.bookId) != visited.end())
      continue;
    visited.push_back(link.bookId);
    // A name of the linked book that links on reads a third book without changing the second.
    if (Of(*linked).LinkChanged(visited)) return true;
  }
  return false;
}

void RecalcState::Run(Workbook& book) {
  RecalcState& state = Of(book);
  if (state.busy) return;
  state.busy = true;
  const NameValueScope names;
  if (!state.orderValid) BuildOrder(book, state);
  bool changed = false;
  bool settled = true;
  double delta = 0;
  for (const Group& group : state.groups) {
    if (!group.cyclic) {
      changed |= Calculate(book, state.items[group.begin], delta);
      continue;
    }
    const std::vector<Item> members(state.items.begin() + group.begin,
                                    state.items.begin() + group.end);
    if (ReadOrder(book, members).Run(changed)) continue;
    // A cycle that really goes round may read differently at the next pass.
    settled = false;
    if (!book.IterationOn()) {
      changed |= MarkCycle(book, members);
      continue;
    }
    for (int pass = 0; pass < std::max(1, book.MaxIterations()); ++pass) {
      double largest = 0;
      for (const Item& item : members) {
        changed |= Calculate(book, item, delta);
        largest = std::max(largest, delta);
      }
      if (largest < book.MaxChange()) break;
    }
  }
  state.busy = false;
  state.dirty = false;
  state.settled = settled;
  if (changed) ++book.changeCount_;
  const BookRegistry& registry = BookRegistry::Instance();
  for (Link& link : state.links) {
    const Workbook* linked = registry.FindById(link.bookId);
    link.seenChangeCount = linked != nullptr ? linked->ChangeCount() : 0;
  }
}

void Workbook::Recalc() {
  RecalcState::Run(*this);
}

bool Workbook::RecalcSettled() const {
  return recalc_ != nullptr && recalc_->settled;
}

void Workbook::SetAutoRecalc(bool on) {
  autoRecalc_ = on;
  if (on) EnsureCalculated();
}

void Workbook::SetIteration(bool on, int maxIterations, double maxChange) {
  iterationOn_ = on;
  maxIterations_ = maxIterations;
  maxChange_ = maxChange;
  RecalcState::Of(*this).dirty = true;
}

void Workbook::EnsureCalculated() {
  if (!autoRecalc_) return;
  RecalcState& state = RecalcState::Of(*this);
  if (state.busy) return;
  if (state.dirty || state.LinkChanged()) Recalc();
}

void Workbook::NoteChange(bool structural) {
  RecalcState& state = RecalcState::Of(*this);
  state.dirty = true;
  ++changeCount_;
  if (structural) state.orderValid = false;
}

}  // namespace gustline::wb
