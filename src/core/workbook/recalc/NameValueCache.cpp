#include "core/workbook/recalc/NameValueCache.h"

#include <unordered_map>

namespace gustline::wb {
namespace {

struct Key {
  std::uint64_t bookId;
  int slot;
  int depth;
  bool operator==(const Key&) const = default;
};

struct KeyHash {
  std::size_t operator()(const Key& key) const {
    return std::hash<std::uint64_t>()((key.bookId * 0x9E3779B97F4A7C15ull) ^
                                      (static_cast<std::uint64_t>(key.slot) << 8) ^
                                      static_cast<std::uint64_t>(key.depth));
  }
};

struct Kept {
  std::uint64_t generation;
  Operand value;
};

// Forgetting moves the generation rather than emptying the table: a recalculation forgets
// at every cell whose value changes.
struct Cache {
  int scopes = 0;
  std::uint64_t generation = 0;
  std::unordered_map<Key, Kept, KeyHash> values;
};

Cache& ThreadCache() {
  thread_local Cache cache;
  return cache;
}

}  // namespace

NameValueScope::NameValueScope() {
  ++ThreadCache().scopes;
}

NameValueScope::~NameValueScope() {
  Cache& cache = ThreadCache();
  if (--cache.scopes == 0 && !cache.values.empty()) cache.values.clear();
}

std::optional<Operand> KnownNameValue(std::uint64_t bookId, int slot, int depth) {
  const Cache& cache = ThreadCache();
  const auto found = cache.values.find({bookId, slot, depth});
  if (found == cache.values.end() || found->second.generation != cache.generation)
    return std::nullopt;
  return found->second.value;
}

void KeepNameValue(std::uint64_t bookId, int slot, int depth, const Operand& value) {
  Cache& cache = ThreadCache();
  if (cache.scopes > 0)
    cache.values.insert_or_assign({bookId, slot, depth}, Kept{cache.generation, value});
}

void ForgetNameValues() {
  ++ThreadCache().generation;
}

}  // namespace gustline::wb
