#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace gustline::geometry {

// Quicksort with the middle element as pivot. Recurses into the smaller part and loops on
// the larger, so the depth stays logarithmic; a value that compares false both ways (a NaN)
// stops the scans and cannot run them out of range.
template <typename T, typename Less>
void MiddlePivotSort(std::vector<T>& items, Less less) {
  if (items.size() < 2) return;
  auto sortRange = [&items, &less](auto& self, std::ptrdiff_t first, std::ptrdiff_t last) -> void {
    while (first < last) {
      const T pivot = items[static_cast<std::size_t>(first + (last - first) / 2)];
      std::ptrdiff_t low = first;
      std::ptrdiff_t high = last;
      while (low <= high) {
        while (low <= last && less(items[static_cast<std::size_t>(low)], pivot)) ++low;
        while (high >= first && less(pivot, items[static_cast<std::size_t>(high)])) --high;
        if (low <= high) {
          std::swap(items[static_cast<std::size_t>(low)], items[static_cast<std::size_t>(high)]);
          ++low;
          --high;
        }
      }
      if (high - first < last - low) {
        self(self, first, high);
        first = low;
      } else {
        self(self, low, last);
        last = high;
      }
    }
  };
  sortRange(sortRange, 0, static_cast<std::ptrdiff_t>(items.size()) - 1);
}

}  // namespace gustline::geometry
