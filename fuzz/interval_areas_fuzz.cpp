// The projected areas by height interval of arbitrary projects: the first line holds
// Height, Interval, Order and UserIntervals separated by tabs, each further line an X and a
// Y of the outline. Every input gives a text, or a facility error for a height that the
// height list refuses or an entry that does not parse.
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Prompt.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "geometry/IntervalAreas.h"
#include "geometry/Nudge.h"

namespace {

using namespace gustline;

// The list walks are quadratic; the coordinate grid keeps outlines to some hundreds of rows.
constexpr int kMaxRows = 400;

std::string_view Field(std::string_view& line) {
  const auto tab = line.find('\t');
  const std::string_view field = line.substr(0, tab);
  line = tab == std::string_view::npos ? std::string_view() : line.substr(tab + 1);
  return field;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  auto nextLine = [&text] {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return line;
  };
  wb::Workbook project("WindData");
  project.AddSheet("Sheet2");
  ScriptedPrompt prompt;
  geometry::CutRandom random(1);
  try {
    const char* names[] = {"Height", "Interval", "Order", "UserIntervals"};
    const int rows[] = {24, 33, 34, 35};
    std::string_view header = nextLine();
    for (int k = 0; k < 4; ++k) {
      project.SetDefinedName(names[k], "Sheet1!$B$" + std::to_string(rows[k]));
      project.SetCellEntry(rows[k], 2, Field(header));
    }
    project.SetActiveSheet(2);
    for (int row = 1; row <= kMaxRows && !text.empty(); ++row) {
      std::string_view line = nextLine();
      project.SetCellEntry(row, 1, Field(line));
      project.SetCellEntry(row, 2, Field(line));
    }
    project.SetActiveSheet(1);
    geometry::GetIntervalAreas(project, {prompt, random, false, nullptr});
  } catch (const wb::FacilityError&) {
  }
  return 0;
}
