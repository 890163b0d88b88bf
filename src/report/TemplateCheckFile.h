#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace gustline::report {

// A template check file read: cases that each start from the default project, write project
// inputs, and name the template the decision tables must choose and values the report must
// show. The format is described in docs/template-checks.md.

// A report cell as a check names it: a defined name or a cell ("qh", "'Page 2'!I12"), or
// a column of the row that shows a label, of its n-th such row, or rows below it
// ("'Page 3'!J@B"Leeward wall"", "'Page 3'!J@B"Windward NTR"[2]", "'Page 2'!I@D"Lh"+1").
struct CheckPlace {
  std::string written;    // as the file writes it
  std::string reference;  // the name or cell; empty for a labelled row
  std::string sheet;
  int column = 0;
  int labelColumn = 0;
  std::string label;
  int occurrence = 1;  // of the rows that show the label, from the top
  int rowOffset = 0;   // rows below the label's row
};

// A number within the tolerance, else whether the cell's row is hidden, else the text the
// cell shows.
struct CheckValue {
  std::optional<double> number;
  std::optional<bool> hidden;
  std::string text;
  double tolerance = 0;
};

struct SetInput {
  std::string name;
  std::string value;
  bool quoted = false;  // written as text whatever it reads as
};
struct ExpectTemplate {
  std::string name;
};
struct ExpectValue {
  CheckPlace place;
  CheckValue value;
};

struct CheckStep {
  using Action = std::variant<SetInput, ExpectTemplate, ExpectValue>;
  int line = 0;
  Action action;
};

struct CheckCase {
  std::string name;
  std::vector<CheckStep> steps;
};

struct CheckFile {
  std::string path;
  std::vector<CheckCase> cases;
};

// A line that is not of the format, or a file that cannot be read (line 0). what() is
// "path:line: reason", or "path: reason" for the whole file.
class CheckFileError : public std::runtime_error {
 public:
  CheckFileError(const std::string& path, int line, const std::string& reason);
  const std::string path;
  const int line;
};

// Raises CheckFileError at the first malformed line.
CheckFile ParseCheckFile(std::string_view text, const std::string& path);
CheckFile ReadCheckFile(const std::string& path);

}  // namespace gustline::report
