#include "geometry/SortLines.h"

#include <optional>
#include <set>
#include <unordered_map>
#include <utility>

namespace gustline::geometry {
namespace {

struct LineRow {
  std::size_t first;   // vertex index of the first end
  std::size_t second;  // vertex index of the second end
};

// The rows at which each vertex is an end of a line, so that the chaining finds the next
// line in order without scanning all the lines that follow.
class VertexRows {
 public:
  VertexRows(const std::vector<LineRow>& rows, std::size_t vertexCount) : rows_(vertexCount) {
    for (std::size_t r = 0; r < rows.size(); ++r) Add(rows[r], r);
  }
  void Add(const LineRow& row, std::size_t at) {
    rows_[row.first].insert(at);
    rows_[row.second].insert(at);
  }
  void Remove(const LineRow& row, std::size_t at) {
    rows_[row.first].erase(at);
    rows_[row.second].erase(at);
  }
  // The first row from `from` on with an end at the vertex, or none.
  std::optional<std::size_t> FirstFrom(std::size_t vertex, std::size_t from) const {
    const auto found = rows_[vertex].lower_bound(from);
    if (found == rows_[vertex].end()) return std::nullopt;
    return *found;
  }

 private:
  std::vector<std::set<std::size_t>> rows_;
};

// Puts each line after the one whose second end it shares, turning it round when needed.
void ChainRows(std::vector<LineRow>& rows, std::size_t vertexCount) {
  VertexRows index(rows, vertexCount);
  for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
    const std::size_t vertex = rows[i].second;
    const auto j = index.FirstFrom(vertex, i + 1);
    if (!j) continue;
    if (*j != i + 1) {
      index.Remove(rows[*j], *j);
      index.Remove(rows[i + 1], i + 1);
      std::swap(rows[*j], rows[i + 1]);
      index.Add(rows[*j], *j);
      index.Add(rows[i + 1], i + 1);
    }
    if (rows[i + 1].first != vertex) std::swap(rows[i + 1].first, rows[i + 1].second);
  }
}

}  // namespace

void SplitPoint(std::string_view text, std::string& x, std::string& y) {
  const auto comma = text.find(',');
  x = std::string(text.substr(0, comma));
  y = comma == std::string_view::npos ? std::string() : std::string(text.substr(comma + 1));
}

LineStatus SortLines(std::vector<std::string>& list, bool onePointPerLine) {
  if (list.size() % 4 != 0) return LineStatus::Uneven;
  const std::size_t lineCount = list.size() / 4;

  std::vector<std::string> vertices;
  std::unordered_map<std::string, std::size_t> vertexIndex;
  auto vertexOf = [&](std::size_t entry) {
    std::string key = list[entry] + "," + list[entry + 1];
    const auto [found, added] = vertexIndex.try_emplace(key, vertices.size());
    if (added) vertices.push_back(std::move(key));
    return found->second;
  };
  std::vector<LineRow> rows;
  rows.reserve(lineCount);
  for (std::size_t k = 0; k < lineCount; ++k)
    rows.push_back({vertexOf(4 * k), vertexOf(4 * k + 2)});

  ChainRows(rows, vertices.size());

  // Each boundary runs from line i to the first later line that ends where line i starts.
  std::vector<std::pair<std::size_t, std::size_t>> boundaries;
  for (std::size_t i = 0; i < rows.size();) {
    std::size_t j = i + 1;
    while (j < rows.size() && rows[j].second != rows[i].first) ++j;
    if (j == rows.size()) return LineStatus::Open;
    boundaries.emplace_back(i, j);
    i = j + 1;
  }
  if (boundaries.empty()) return LineStatus::Open;

  std::vector<std::string> points;
  auto addVertex = [&](std::size_t vertex) {
    std::string x, y;
    SplitPoint(vertices[vertex], x, y);
    points.push_back(std::move(x));
    points.push_back(std::move(y));
  };
  for (const auto& [first, last] : boundaries) {
    addVertex(rows[first].first);
    for (std::size_t j = first; j <= last; ++j) {
      if (!onePointPerLine) addVertex(rows[j].first);
      addVertex(rows[j].second);
    }
    points.emplace_back();
    points.emplace_back();
  }
  list = std::move(points);
  return LineStatus::Closed;
}

}  // namespace gustline::geometry
