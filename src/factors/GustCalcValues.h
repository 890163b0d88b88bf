#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/workbook/value/Value.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

class Prompt;

// The gust factor calculator: a structure's exposure, dimensions and dynamic properties, as
// its fields hold them. It works on a workbook of its own, never on the project, so the table
// names no cells; the damping is typed in per cent.
struct GustCalcValues {
  int exposure = 0;  // Combo1: " A" to " D"
  std::string height = "1.00";
  std::string width = "1.00";
  std::string depth = "1.00";
  std::string wind = "90.00";
  std::string frequency = "1.00";
  std::string damping = "1.00";
};

inline constexpr rules::FormField<GustCalcValues> kGustCalcFields[] = {
    {.control = "Combo1", .member = &GustCalcValues::exposure},
    {.control = "txHeight", .member = &GustCalcValues::height, .rule = ">=1.00,<=2000.00"},
    {.control = "txWidth", .member = &GustCalcValues::width, .rule = ">=1.0"},
    {.control = "txDepth", .member = &GustCalcValues::depth, .rule = ">=1.0"},
    {.control = "txWind", .member = &GustCalcValues::wind},
    {.control = "txFreq", .member = &GustCalcValues::frequency, .rule = ">=0,<=100.00"},
    {.control = "txBeta", .member = &GustCalcValues::damping, .rule = ">=0.0001,<=50.0"},
};

// The items of the exposure list, in the order of its index.
inline constexpr std::string_view kGustCalcExposures[] = {" A", " B", " C", " D"};

// The rules of the fields, in the order of the table: a text that breaks one shows that
// rule's box and gives false.
bool CheckGustCalcFields(Prompt& prompt, const GustCalcValues& values);

// The calculator's workbook as the program carries it.
std::string GustCalcPath(std::string_view applicationPath);

// Writes the fields into the given values of the first page, as the calculator does at every
// change: the exposure letter, then wind speed, height, width, depth and frequency as their
// numeric conversion reads them (0 for a text that is no number), and the damping / 100.
// Recalculates the book.
void WriteGustCalcInputs(wb::Workbook& gustCalc, const GustCalcValues& values);

// What the frame "Calculated Gust Factor" shows: " G = " and G in "0.0000", or G's error
// value (no damping divides by zero).
std::string GustCalcLabel(wb::Workbook& gustCalc);

// The steps of the second page, in its order, each by its line's label and the defined name
// of its cell; G is the last.
struct GustCalcStep {
  std::string_view label;
  std::string_view name;
};
std::span<const GustCalcStep> GustCalcSteps();

// The value of a step, or of any defined name of the book.
wb::Value GustCalcValue(wb::Workbook& gustCalc, std::string_view name);

}  // namespace gustline
