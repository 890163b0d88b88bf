#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "CsvTable.h"

namespace gustline::books::testing {

// The fields of every line of a comma-separated file after its heading line.
inline std::vector<std::vector<std::string>> ReadCsvLines(const std::string& path) {
  std::ifstream in(path);
  std::vector<std::vector<std::string>> lines;
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line))
    if (!line.empty()) lines.push_back(SplitCsvLine(line));
  return lines;
}

}  // namespace gustline::books::testing
