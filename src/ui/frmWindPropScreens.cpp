#include "ui/frmWindPropScreens.h"

#include <iterator>

#include "core/ProcessState.h"

namespace gustline {
namespace {

Message Warning(std::string_view first, std::string_view second) {
  return {"Warning", std::string(first) + std::string(kCrLf) + std::string(second),
          PromptIcon::Exclamation, PromptButtons::Ok};
}

struct PressureRow {
  const char* caption;
  const char* equation;
  const char* figures;
};

// By system and structure; the stray bracket of the components equations is the form's own.
constexpr PressureRow kPressureRows[3][3] = {
    {{"Low-Rise Buildings", "p = qh[(GCpf) - (GCpi)]", "Fig. 6-10"},
     {"Rigid Buildings of all Heights", "p = qGCp - qi(GCpi)", "Fig. 6-6, 6-7, 6-8"},
     {"Flexible Buildings", "p = qGfCp - qi(GCpi)", "Fig. 6-6, 6-7, 6-8"}},
    {{"Low-Rise Buildings and Buildings with h <= 60 ft", "p = qh[(GCp) - (GCpi)]",
      "Fig. 6-11 Thru 6-15"},
     {"Walls and Roofs with h > 60 ft", "p = q(GCp) - qi(GCpi)]", "Fig. 6-17"},
     {"Arched and Domed Roofs of all heights", "p = q(GCp) - qi(GCpi)]", "Fig. 6-8, Fig. 6-16"}},
    {{"Rigid Structures", "p = qzGCn", "Fig. 6-18 Thru Fig. 6-23"},
     {"Flexible Structures", "p = qzGCn", "Fig. 6-18 Thru Fig. 6-23"},
     {"", "", ""}},
};

std::optional<Message> PressureWarning(int system, int structure, double height) {
  if (system == 0 && structure == 0 && height > 60) {
    return Warning("Low-rise buildings (Fig. 6-10) should have ", "a mean roof height <= 60.0 ft.");
  }
  if (system == 1 && structure == 0 && height > 60) {
    return Warning("Enclosed or partially enclosed buildings (Fig. 6-11 Thru 6-15) ",
                   "should have a mean roof height <= 60.0 ft.");
  }
  if (system == 1 && structure == 1 && height <= 60) {
    return Warning("Enclosed or partially enclosed buildings (Fig. 6-17)",
                   "should have a mean roof height > 60.0 ft.");
  }
  return std::nullopt;
}

struct FigureEntry {
  const char* substring;
  FigureChoice choice;
};

// Searched in this order; the first substring found decides.
const FigureEntry kFigureEntries[] = {
    {"None", {FigureDialog::None, 0, HeightRule::Any, false}},
    {"Figure 6-6", {FigureDialog::Fig66, 1, HeightRule::Any, true}},
    {"Figure 6-10", {FigureDialog::Fig610, 2, HeightRule::AtMost60, false}},
    {"Figure 6-11", {FigureDialog::Fig611, 3, HeightRule::AtMost60, false}},
    {"Figure 6-13", {FigureDialog::Fig611, 4, HeightRule::AtMost60, false}},
    {"Figure 6-14", {FigureDialog::Fig611, 5, HeightRule::AtMost60, false}},
    {"Figure 6-15", {FigureDialog::Fig611, 6, HeightRule::AtMost60, false}},
    {"Figure 6-17", {FigureDialog::Fig617, 7, HeightRule::Over60, true}},
    {"Arched Roofs, Figure 6-8", {FigureDialog::Figure68, 8, HeightRule::Any, true}},
    {"Domed Roofs, Figure 6-7", {FigureDialog::Figure67, 9, HeightRule::Any, true}},
    {"Figure 6-16", {FigureDialog::Fig616, 9, HeightRule::Any, false}},
};

}  // namespace

PressureScreen PressureScreenFor(int system, int structure, double height) {
  PressureScreen screen;
  const int row = system >= 0 && system <= 2 ? system : 0;
  screen.thirdStructureVisible = row != 2;
  screen.structure = (row == 2 && structure == 2) ? 1 : structure;
  for (int i = 0; i < 3; ++i) screen.structureCaptions[i] = kPressureRows[row][i].caption;
  if (screen.structure >= 0 && screen.structure <= 2) {
    screen.equation = kPressureRows[row][screen.structure].equation;
    screen.figures = kPressureRows[row][screen.structure].figures;
  }
  screen.warning = PressureWarning(system, screen.structure, height);
  return screen;
}

ForceFactorScreen ForceFactorScreenFor(int system, int structure) {
  ForceFactorScreen screen;
  if (system == 2) {
    screen.figureItems = {"None"};
    screen.figuresEnabled = false;
    screen.tablesEnabled = true;
    return screen;
  }
  if (system == 0 && structure == 0) {
    screen.figureItems = {"Low Rise-Buildings - Gable Roof, Figure 6-10"};
  } else if (system == 0) {
    screen.figureItems = {"Buildings of all Heights, Figure 6-6", "Domed Roofs, Figure 6-7",
                          "Arched Roofs, Figure 6-8"};
  } else if (structure == 0) {
    screen.figureItems = {
        "Buildings Components, Gabled, Hipped,Stepped Roofs..., Figure 6-11B, 6-12",
        "Buildings Components, Multispan Gabled Roofs..., Figure 6-13",
        "Buildings Components, Monoslope Roofs..., Figure 6-14",
        "Buildings Components, Sawtooth Roofs-Two or More Spans..., Figure 6-15"};
  } else if (structure == 1) {
    screen.figureItems = {"Buildings Components, Mean Roof Height > 60.0 ft.,Figure 6-17"};
  } else {
    screen.figureItems = {"Buildings Components, Arched Roofs, Figure 6-8",
                          "Buildings Components, Domed Roofs, Figure 6-16"};
  }
  return screen;
}

const std::vector<std::string>& TableItems() {
  static const std::vector<std::string> items = {
      "Free Roofs over Open Buildings (MWFRS), Figure 6-18A thru D",
      "Free Roofs over Open Buildings (Comp. and Cladd.), Figure 6-19A thru C",
      "Solid Freestanding Walls and Signs, Figure 6-20",
      "Chimneys, Tanks, Rooftop Equipment and Similar Structures, Figure 6-21",
      "Open Signs and Lattice Frameworks, Figure 6-22",
      "Trussed Towers, Figure 6-23",
      "Special Case"};
  return items;
}

int FigureListIndex(int system, int structure, int figure) {
  int index = -1;
  if (system == 1) {
    switch (figure) {
      case 1:
      case 3:
      case 7:
      case 8:
        index = 0;
        break;
      case 4:
      case 9:
        index = 1;
        break;
      case 5:
        index = 2;
        break;
      case 6:
        index = 3;
        break;
      default:
        break;
    }
  } else if (system == 0 && structure != 0) {
    // A figure of another system gives way to Figure 6-6, so that the report has a template.
    index = figure == 9 ? 1 : figure == 8 ? 2 : 0;
  } else {
    index = 0;
  }
  const int count = static_cast<int>(ForceFactorScreenFor(system, structure).figureItems.size());
  return index < count ? index : -1;
}

GustScreen GustScreenFor(int system, int structure, int gustType) {
  GustScreen screen;
  screen.gustType = gustType;
  const bool lowRiseOrComponents = system == 1 || (system == 0 && structure == 0);
  const bool flexible = (system == 0 && structure == 2) || (system == 2 && structure == 1);
  if (lowRiseOrComponents) {
    screen.enabled = {false, false, false, true};
    screen.gustType = 3;
  } else if (flexible) {
    screen.enabled = {false, false, true, false};
    screen.gustType = 2;
  } else {
    screen.enabled = {true, true, false, false};
    if (gustType != 0 && gustType != 1) screen.gustType = 0;
  }
  return screen;
}

bool HeightEditable(int interval) {
  return interval != 5;
}

FigureChoice FigureChoiceOf(std::string_view item, int system) {
  for (const FigureEntry& entry : kFigureEntries) {
    if (item.find(entry.substring) == std::string_view::npos) continue;
    FigureChoice choice = entry.choice;
    if (choice.dialog == FigureDialog::Figure68 && system == 1) {
      choice.dialog = FigureDialog::Figure68comp;
    }
    return choice;
  }
  return {};
}

TableDialog TableDialogOf(int row) {
  constexpr TableDialog kByRow[] = {TableDialog::Figure618,   TableDialog::Fig619,
                                    TableDialog::Figure620,   TableDialog::Figure619,
                                    TableDialog::Figure621,   TableDialog::Figure622,
                                    TableDialog::TableSpecial};
  if (row < 0 || row >= static_cast<int>(std::size(kByRow))) return TableDialog::None;
  return kByRow[row];
}

std::optional<Message> HeightRangeError(HeightRule rule, double height) {
  const char* limit = nullptr;
  if (rule == HeightRule::AtMost60 && height > 60) limit = "less than or equal to 60.0 ft";
  if (rule == HeightRule::Over60 && height <= 60) limit = "greater than 60.0 ft";
  if (limit == nullptr) return std::nullopt;
  return Message{"Height Range Error", "Mean roof height h must be" + std::string(kCrLf) + limit,
                 PromptIcon::Exclamation, PromptButtons::Ok};
}

bool FigureDependsOnHeight(int system, int figure) {
  return system != 2 && figure >= 1;
}

Message NewHeightWarning() {
  return {"Warning", "Update the Force Pressure Coefficients for the new height",
          PromptIcon::Exclamation, PromptButtons::Ok};
}

}  // namespace gustline
