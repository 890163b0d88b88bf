#include "ui/frmWindPropStatus.h"

#include <array>
#include <cmath>

#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

// A field shown in a format: its number formatted, or its text as it is when it holds none.
std::string Formatted(std::string_view field, std::string_view format) {
  const auto number = rules::FieldNumber(field);
  return number ? wb::FormatNumber(*number, format) : std::string(field);
}

// The program's rounding: the nearer of the integer part and the next integer, the upper
// on a tie, all in single precision.
float RoundHalfUp(float value, int places) {
  const float scale = std::pow(10.0f, static_cast<float>(places));
  const float scaled = value * scale;
  const float lower = std::floor(scaled);
  const float upper = lower + 1.0f;
  return (scaled - lower < upper - scaled ? lower : upper) / scale;
}

}  // namespace

std::string WindSpeedPanelText(std::string_view windSpeedField) {
  return " V = " + Formatted(windSpeedField, "0.00") + " mph";
}

std::string ImportancePanelText(int category) {
  constexpr std::array<const char*, 5> kFactors = {"0.87", "1.00", "1.15", "1.15", "0.77"};
  if (category < 0 || category >= static_cast<int>(kFactors.size())) return " I = ";
  return std::string(" I = ") + kFactors[static_cast<std::size_t>(category)];
}

std::string ExposurePanelText(int exposure) {
  constexpr std::array<const char*, 4> kLetters = {"A", "B", "C", "D"};
  if (exposure < 0 || exposure >= static_cast<int>(kLetters.size())) return " Exposure = ";
  return std::string(" Exposure = ") + kLetters[static_cast<std::size_t>(exposure)];
}

std::string HeightPanelText(std::string_view heightField) {
  return " Height = " + Formatted(heightField, "0.00") + " ft ";
}

float DialogAirDensity(float meanSeaLevel) {
  return RoundHalfUp(std::exp(-meanSeaLevel / 33396.1454325f) / 13.07629f, 4);
}

float DialogConstant(float meanSeaLevel) {
  const float speed = 5280.0f / 3600.0f;
  return RoundHalfUp(0.5f * (DialogAirDensity(meanSeaLevel) / 32.2f) * speed * speed, 5);
}

std::string AirDensityLabel(std::string_view meanSeaLevelField) {
  const auto msl = static_cast<float>(rules::FieldValue(meanSeaLevelField));
  return "Air Density = " + wb::FormatNumber(DialogAirDensity(msl), "0.00000");
}

std::string ConstantLabel(std::string_view meanSeaLevelField) {
  const auto msl = static_cast<float>(rules::FieldValue(meanSeaLevelField));
  return "Constant    = " + wb::FormatNumber(DialogConstant(msl), "0.00000");
}

}  // namespace gustline
