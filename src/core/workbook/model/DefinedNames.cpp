#include "core/workbook/model/DefinedNames.h"

#include <algorithm>
#include <utility>

#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {

int DefinedNames::Slot(std::string_view name) {
  std::string key = UpperAscii(name);
  if (const auto found = index_.find(key); found != index_.end()) return found->second;
  const int slot = static_cast<int>(entries_.size());
  entries_.push_back(Entry{std::string(name), {}, nullptr, false});
  index_.emplace(std::move(key), slot);
  return slot;
}

int DefinedNames::Find(std::string_view name) const {
  const auto found = index_.find(UpperAscii(name));
  return found == index_.end() ? -1 : found->second;
}

void DefinedNames::Define(int slot, std::string refersTo, std::shared_ptr<const Formula> formula) {
  Entry& entry = At(slot);
  if (!entry.defined) order_.push_back(slot);
  entry.refersTo = std::move(refersTo);
  entry.formula = std::move(formula);
  entry.defined = true;
}

void DefinedNames::Undefine(int slot) {
  Entry& entry = At(slot);
  if (!entry.defined) return;
  entry.refersTo.clear();
  entry.formula.reset();
  entry.defined = false;
  std::erase(order_, slot);
}

void DefinedNames::Clear() {
  for (Entry& entry : entries_) {
    entry.refersTo.clear();
    entry.formula.reset();
    entry.defined = false;
  }
  order_.clear();
}

}  // namespace gustline::wb
