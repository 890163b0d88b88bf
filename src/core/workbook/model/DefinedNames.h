#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gustline::wb {

class Formula;

// The defined names of a book, matched without regard to case. Formulas hold a slot, not
// the name, so that a name defined or redefined after a formula was parsed is seen by it.
// A slot, once made, lives as long as the table; an undefined slot yields #NAME?.
class DefinedNames {
 public:
  struct Entry {
    std::string name;                        // as first spelled
    std::string refersTo;                    // formula text without "=", e.g. "Sheet1!$B$87"
    std::shared_ptr<const Formula> formula;  // parsed refersTo; null while undefined
    bool defined = false;
  };

  // The slot of a name, made (undefined) when it does not exist yet.
  int Slot(std::string_view name);
  // The slot of a name, or -1.
  int Find(std::string_view name) const;
  const Entry& At(int slot) const { return entries_[static_cast<std::size_t>(slot)]; }
  Entry& At(int slot) { return entries_[static_cast<std::size_t>(slot)]; }
  int SlotCount() const { return static_cast<int>(entries_.size()); }

  // The defined names in the order they were first defined, as NameCount and NameAt walk them.
  const std::vector<int>& DefinedOrder() const { return order_; }
  void Define(int slot, std::string refersTo, std::shared_ptr<const Formula> formula);
  void Undefine(int slot);
  // Undefines every name; the slots stay so that parsed formulas keep their meaning.
  void Clear();

 private:
  std::vector<Entry> entries_;
  std::unordered_map<std::string, int> index_;  // upper-cased name -> slot
  std::vector<int> order_;
};

}  // namespace gustline::wb
