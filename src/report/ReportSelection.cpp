#include "report/ReportSelection.h"

#include <array>

#include "core/workbook/model/NamedCells.h"
#include "structures/FreeRoof.h"

namespace gustline::report {
namespace {

using enum TemplateContainer;

constexpr const char* kRatioRangeText =
    "Structure height / Structure width must be greater than or equal to 0.25 and less than "
    "or equal to 1.0 ";

ChosenTemplate Choose(std::string name, TemplateContainer container) {
  return ChosenTemplate{TemplateId{std::move(name), container}};
}

Selection MainWindForce(const SelectionInputs& in) {
  if (in.structure == 0) return Choose("Figure610", D);
  if (in.structure == 1) {
    struct Row {
      int figure;
      int gustType;
      const char* name;
      TemplateContainer container;
    };
    constexpr std::array<Row, 6> kRows = {{{1, 0, "Figure66A", D},
                                           {1, 1, "Figure66C", F},
                                           {8, 0, "Figure68A", D},
                                           {8, 1, "Figure68C", F},
                                           {9, 0, "Figure67A", G},
                                           {9, 1, "Figure67C", G}}};
    for (const Row& row : kRows)
      if (row.figure == in.figure && row.gustType == in.gustType)
        return Choose(row.name, row.container);
  }
  if (in.structure == 2) {
    if (in.figure == 1) return Choose("Figure66B", D);
    if (in.figure == 8) return Choose("Figure68B", B);
    if (in.figure == 9) return Choose("Figure67B", G);
  }
  return NoTemplate{};
}

Selection ComponentsAndCladding(const SelectionInputs& in) {
  if (in.structure == 0) {
    switch (in.figure) {
      case 3:
        return Choose("Figure611B", D);
      case 4:
        return Choose("Figure613", D);
      case 5:
        return Choose("Figure614A", D);
      case 6:
        return Choose("Figure614B", D);
      default:
        return NoTemplate{};
    }
  }
  if (in.structure == 1) return Choose("Figure617", D);
  if (in.structure == 2) {
    if (in.figure == 8) return Choose("Figure68B", F);
    return Choose("figure616A", G);
  }
  return NoTemplate{};
}

// The ratio is taken in single precision, as the program kept it; a ratio that is no number
// (a zero width) fails as one out of range.
bool RatioWithin(const SelectionInputs& in, double low, double high) {
  const double ratio = static_cast<float>(in.height / in.width);
  return ratio >= low && ratio <= high;
}

std::optional<RangeRefusal> CheckRatio(const SelectionInputs& in) {
  if (in.table < 0 || in.table > 2) return std::nullopt;
  if (in.table <= 1 && in.note5) {
    if (RatioWithin(in, 0.05, 0.25)) return std::nullopt;
    return RangeRefusal{Note5RatioRefusal()};
  }
  if (RatioWithin(in, 0.25, 1.0)) return std::nullopt;
  return RangeRefusal{Message{"Error", kRatioRangeText, PromptIcon::Stop}};
}

// One member per gust treatment: 0 on ContainerA, 1 on ContainerF, 2 on ContainerB.
TemplateContainer FamilyContainer(int gustType) {
  return gustType == 0 ? A : gustType == 1 ? F : B;
}

Selection OpenStructures(const SelectionInputs& in) {
  if (const auto refusal = CheckRatio(in)) return *refusal;
  if (in.gustType < 0 || in.gustType > 2) return NoTemplate{};
  const TemplateContainer container = FamilyContainer(in.gustType);
  const std::string roofLetter(1, static_cast<char>('A' + in.roofType - 1));
  const NoTemplate invalidRoof{Message{"", "Invalid roof type"}};
  // The last letter of the Figure 6-21 to 6-23 templates follows the container, not G.
  const char* member = in.gustType == 0 ? "A" : in.gustType == 1 ? "C" : "B";
  switch (in.table) {
    case 0:
    case 1:
      if (in.roofType < 1 || in.roofType > 4) return invalidRoof;
      return Choose((in.gustType == 0 ? "Figure618" : "Fig618") + roofLetter, container);
    case 2:
      if (in.roofType < 1 || in.roofType > 3) return invalidRoof;
      return Choose("Fig619" + roofLetter, container);
    case 3:
      return Choose("Fig620", container);
    case 4:
      return Choose(std::string("Figure619") + member, container);
    case 5:
      return Choose(std::string("Figure621") + member, container);
    case 6:
      return Choose(std::string("Figure622") + member, container);
    case 7:
      if (in.gustType == 1) return Choose("TableSpecialD", F);
      return Choose(in.gustType == 0 ? "TableSpecial" : "TableSpecialB", D);
    default:
      return NoTemplate{};
  }
}

}  // namespace

SelectionInputs ReadSelectionInputs(wb::Workbook& project) {
  SelectionInputs in;
  in.table = wb::ReadNamedInt(project, "Table");
  in.figure = wb::ReadNamedInt(project, "Figure");
  in.system = wb::ReadNamedInt(project, "System");
  in.structure = wb::ReadNamedInt(project, "Structure");
  in.gustType = wb::ReadNamedInt(project, "GustType");
  in.roofType = wb::ReadNamedInt(project, "Table66RoofType");
  in.note5 = wb::ReadNamedInt(project, "Note5Applies") != 0;
  in.b124 = wb::ReadNamedNumber(project, "B124");
  if (in.system == 2) {
    in.height = wb::ReadNamedNumber(project, "Height");
    in.width = wb::ReadNamedNumber(project, "Width");
  }
  return in;
}

Selection SelectTemplate(const SelectionInputs& in) {
  if (in.b124 > 0) return in.system == 0 ? Choose("SimpMFWRS", F) : Choose("SimpCompAndClad", F);
  switch (in.system) {
    case 0:
      return MainWindForce(in);
    case 1:
      return ComponentsAndCladding(in);
    case 2:
      return OpenStructures(in);
    default:
      return NoTemplate{};
  }
}

}  // namespace gustline::report
