#include "buildings/DomeValues.h"

#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

constexpr QiCells kQiCells = {.useQi = "Fig63UseQi", .z = "Fig63Z"};

Message DomeError(const char* text) {
  return Message{"Error", text, PromptIcon::Stop, PromptButtons::Ok};
}

// A ratio to the diameter as the fields give it. A diameter of 0 gives no number, or an
// infinite one, and neither lies within a range of the figures.
double PerDiameter(const std::string& length, const std::string& diameter) {
  return rules::FieldValue(length) / rules::FieldValue(diameter);
}

// Written so that a ratio that is no number falls outside.
bool Within(double ratio, double low, double high) {
  return ratio >= low && ratio <= high;
}

}  // namespace

Figure67Values LoadFigure67(wb::Workbook& project) {
  Figure67Values v;
  rules::LoadFields(project, kFigure67Fields, v);
  const QiChoice qi = LoadQi(project, kQiCells);
  v.useQz = qi.useQz;
  v.z = qi.z;
  v.table64 = qi.table64;
  return v;
}

void SaveFigure67(wb::Workbook& project, const Figure67Values& v) {
  rules::SaveFields(project, kFigure67Fields, v);
  SaveQi(project, kQiCells, v.useQz, v.z);
}

Fig616Values LoadFig616(wb::Workbook& project) {
  Fig616Values v;
  rules::LoadFields(project, kFig616Fields, v);
  return v;
}

void SaveFig616(wb::Workbook& project, const Fig616Values& v) {
  rules::SaveFields(project, kFig616Fields, v);
}

std::optional<Message> Figure67Refusal(const Figure67Values& v) {
  const double fOverD = PerDiameter(v.rise, v.diameter);
  // Negated, so that an f/D that is no number is refused.
  if (!(fOverD >= 0.05)) return DomeError("f / d must be greater than .05. ");
  if (!(fOverD <= 0.5)) return DomeError("f / d must be less than 0.50. ");
  return std::nullopt;
}

std::optional<Message> Fig616Refusal(const Fig616Values& v) {
  if (!Within(PerDiameter(v.rise, v.diameter), 0.2, 0.5))
    return DomeError("f / D must be between 0.2 and 0.5. ");
  if (!Within(PerDiameter(v.eaveHeight, v.diameter), 0, 0.5))
    return DomeError("hD / D must be between 0 and 0.5. ");
  return std::nullopt;
}

}  // namespace gustline
