#include "factors/GustCalcValues.h"

#include <array>
#include <cstddef>
#include <variant>

#include "core/FileNames.h"
#include "core/TextTools.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/CheckRule.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

constexpr std::array<GustCalcStep, 17> kSteps = {{
    {"Vref", "StepVref"},
    {"z", "StepZ"},
    {"Iz", "StepIz"},
    {"Lz", "StepLz"},
    {"Q2", "StepQ2"},
    {"Vz", "StepVz"},
    {"N1", "StepN1"},
    {"Rn", "StepRn"},
    {"nh", "StepNh"},
    {"nb", "StepNb"},
    {"nd", "StepNd"},
    {"Rh", "StepRh"},
    {"Rb", "StepRb"},
    {"Rd", "StepRd"},
    {"R2", "StepR2"},
    {"g", "PeakFactor"},
    {"G", "Gust"},
}};

}  // namespace

bool CheckGustCalcFields(Prompt& prompt, const GustCalcValues& v) {
  for (const rules::FormField<GustCalcValues>& field : kGustCalcFields) {
    const auto* text = std::get_if<std::string GustCalcValues::*>(&field.member);
    if (text != nullptr && !rules::CheckRule(prompt, field.rule, v.**text)) return false;
  }
  return true;
}

std::string GustCalcPath(std::string_view applicationPath) {
  return JoinPath(JoinPath(applicationPath, "workbooks"), "GustCalc.gwb");
}

void WriteGustCalcInputs(wb::Workbook& gustCalc, const GustCalcValues& v) {
  const auto index = static_cast<std::size_t>(v.exposure);
  const std::string_view item =
      index < std::size(kGustCalcExposures) ? kGustCalcExposures[index] : kGustCalcExposures[0];
  wb::WriteNamedText(gustCalc, "Exposure", TrimBlanks(item));
  wb::WriteNamedNumber(gustCalc, "WindSpeed", rules::FieldValue(v.wind));
  wb::WriteNamedNumber(gustCalc, "Height", rules::FieldValue(v.height));
  wb::WriteNamedNumber(gustCalc, "Width", rules::FieldValue(v.width));
  wb::WriteNamedNumber(gustCalc, "Depth", rules::FieldValue(v.depth));
  wb::WriteNamedNumber(gustCalc, "Frequency", rules::FieldValue(v.frequency));
  wb::WriteNamedNumber(gustCalc, "Damping", rules::FieldValue(v.damping) / 100);
  gustCalc.Recalc();
}

std::string GustCalcLabel(wb::Workbook& gustCalc) {
  return " G = " + wb::DisplayText(GustCalcValue(gustCalc, "Gust"), "0.0000");
}

std::span<const GustCalcStep> GustCalcSteps() {
  return kSteps;
}

wb::Value GustCalcValue(wb::Workbook& gustCalc, std::string_view name) {
  gustCalc.SetSelection(name);
  return gustCalc.CellValue(gustCalc.SelFirstRow(), gustCalc.SelFirstCol());
}

}  // namespace gustline
