#pragma once

#include <string>
#include <string_view>

namespace gustline {

// The status panels that the dialog keeps up to date while its fields change.
inline constexpr int kWindSpeedPanel = 2;
inline constexpr int kImportancePanel = 3;
inline constexpr int kExposurePanel = 4;
inline constexpr int kHeightPanel = 5;

std::string WindSpeedPanelText(std::string_view windSpeedField);  // " V = 100.00 mph"
std::string ImportancePanelText(int category);                    // " I = 0.87"
std::string ExposurePanelText(int exposure);                      // " Exposure = C"
std::string HeightPanelText(std::string_view heightField);        // " Height = 60.00 ft "

// The dialog's own air density and velocity pressure constant beside the elevation field:
// single precision, divisor 13.07629, each rounded half up, to 4 and to 5 places.
float DialogAirDensity(float meanSeaLevel);
float DialogConstant(float meanSeaLevel);
std::string AirDensityLabel(std::string_view meanSeaLevelField);  // "Air Density = 0.07650"
std::string ConstantLabel(std::string_view meanSeaLevelField);    // "Constant    = 0.00256"

}  // namespace gustline
