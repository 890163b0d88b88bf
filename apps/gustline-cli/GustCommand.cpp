// gustline-cli gust: the gust factor calculator without its window. The values are those of
// its fields, the damping ratio in per cent, each checked by its field's rule; G and the
// steps of the calculator's second page are printed one a line, each number in the shortest
// text that reads back as the same double.
#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "core/Prompt.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "factors/GustCalcValues.h"

namespace gustline::cli {
namespace {

constexpr const char* kUsage =
    "gust [--exposure A|B|C|D] [--height FT] [--width FT] [--depth FT] [--speed MPH]\n"
    "       [--frequency HZ] [--damping PERCENT]   G by the gust factor calculator, with its steps";

struct GustOption {
  std::string_view option;
  std::string GustCalcValues::*field;
};

constexpr std::array<GustOption, 6> kOptions = {{
    {"--height", &GustCalcValues::height},
    {"--width", &GustCalcValues::width},
    {"--depth", &GustCalcValues::depth},
    {"--speed", &GustCalcValues::wind},
    {"--frequency", &GustCalcValues::frequency},
    {"--damping", &GustCalcValues::damping},
}};

std::optional<int> ExposureIndex(std::string_view letter) {
  if (letter.size() != 1) return std::nullopt;
  const char upper = static_cast<char>(letter[0] & ~0x20);
  if (upper < 'A' || upper > 'D') return std::nullopt;
  return upper - 'A';
}

std::optional<GustCalcValues> ParseGustArgs(const std::vector<std::string>& args) {
  GustCalcValues values;
  for (std::size_t i = 0; i < args.size(); i += 2) {
    const std::string& option = args[i];
    if (i + 1 >= args.size()) {
      std::cerr << "gustline-cli gust: " << option << " needs a value\n";
      return std::nullopt;
    }
    const std::string& value = args[i + 1];
    if (option == "--exposure") {
      const auto index = ExposureIndex(value);
      if (!index) {
        std::cerr << "gustline-cli gust: the exposure is A, B, C or D, not '" << value << "'\n";
        return std::nullopt;
      }
      values.exposure = *index;
      continue;
    }
    const auto* found = std::find_if(kOptions.begin(), kOptions.end(),
                                     [&](const GustOption& o) { return o.option == option; });
    if (found == kOptions.end()) {
      std::cerr << "gustline-cli gust: unknown option '" << option << "'\n";
      return std::nullopt;
    }
    values.*(found->field) = value;
  }
  return values;
}

std::string ShortestText(double number) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
  return {buffer.data(), result.ptr};
}

int RunGust(const std::vector<std::string>& args) {
  const auto values = ParseGustArgs(args);
  if (!values) return kExitUsage;
  StderrPrompt prompt;
  if (!CheckGustCalcFields(prompt, *values)) return kExitUsage;
  try {
    wb::Workbook book;
    book.ReadWorkbook(GustCalcPath(ProgramFolder()));
    WriteGustCalcInputs(book, *values);
    for (const GustCalcStep& step : GustCalcSteps()) {
      const wb::Value value = GustCalcValue(book, step.name);
      std::cout << step.label << " = "
                << (value.IsNumber() ? ShortestText(value.AsNumber()) : wb::PlainText(value))
                << '\n';
    }
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli gust: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand("gust", kUsage, RunGust);

}  // namespace
}  // namespace gustline::cli
