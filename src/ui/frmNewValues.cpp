#include "ui/frmNewValues.h"

#include <array>
#include <utility>

#include "core/FileNew.h"

namespace gustline {
namespace {

// The figure named in a key: the text after "Figure " up to the next blank.
std::string_view FigureOf(std::string_view key) {
  constexpr std::string_view kFigure = "Figure ";
  const std::size_t at = key.find(kFigure);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = key.substr(at + kFigure.size());
  return rest.substr(0, rest.find(' '));
}

}  // namespace

std::string NewProjectDescription(std::string_view key) {
  // Figure 6-8 is the arched roof of both families.
  constexpr std::array<std::pair<std::string_view, std::string_view>, 22> kByFigure = {{
      {"6-10", "Low-Rise Buildings - Gable Roof"},
      {"6-6", "Buildings of All Heights"},
      {"6-7", "Domed Roofs"},
      {"6-8", "Arched Roofs"},
      {"6-11", "Gabled, Hipped Roofs"},
      {"6-12", "Stepped Roofs"},
      {"6-13", "Multispan Gabled Roofs"},
      {"6-14A", "Monoslope Roofs"},
      {"6-15", "Sawtooth Roofs-Two or More Spans"},
      {"6-16", "Domed Roofs"},
      {"6-17", "Mean Roof Height > 60.0"},
      {"6-18A", "Monoslope Free Roofs"},
      {"6-18B", "Pitched Free Roofs"},
      {"6-18C", "Troughed Free Roofs"},
      {"6-18D", "Free Roofs"},
      {"6-19A", "Monoslope Free Roofs"},
      {"6-19B", "Pitched Free Roofs"},
      {"6-19C", "Troughed Free Roofs"},
      {"6-20", "Solid Freestanding Walls & Solid Signs"},
      {"6-21", "Chimneys, Tanks, Rooftop Equipment & Similar Structures"},
      {"6-22", "Open Signs and Lattice Frameworks"},
      {"6-23", "Trussed Towers"},
  }};
  if (key == "Normal") return "  Active Template";
  if (key.find("Special Case") != std::string_view::npos) return "  Special Case";
  const std::string_view figure = FigureOf(key);
  for (const auto& [name, description] : kByFigure) {
    if (figure == name) return "  " + std::string(description);
  }
  return {};
}

const std::vector<NewProjectRow>& NewProjectRows() {
  static const std::vector<NewProjectRow> rows = [] {
    std::vector<NewProjectRow> built;
    for (const std::string& key : NewProjectPresetKeys()) {
      // "Normal" stands one blank further left than the presets under it.
      const std::string indent = built.empty() ? " " : "  ";
      built.push_back({key, indent + key, NewProjectDescription(key)});
    }
    return built;
  }();
  return rows;
}

}  // namespace gustline
