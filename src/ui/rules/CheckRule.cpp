#include "ui/rules/CheckRule.h"

#include <array>
#include <optional>
#include <sstream>
#include <vector>

#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/TextTools.h"
#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline::rules {
namespace {

struct Operator {
  std::string_view symbol;
  std::string_view words;
};

// Searched in this order, so that "<=" is found ahead of "<" and "=".
constexpr std::array<Operator, 6> kOperators = {{
    {"<=", "less or equal to "},
    {">=", "greater or equal to "},
    {"<>", "different than "},
    {"=", "equal to "},
    {"<", "less than "},
    {">", "greater than "},
}};

bool rangeErrorFlag = false;

bool Holds(std::string_view symbol, double value, double limit) {
  if (symbol == "<=") return value <= limit;
  if (symbol == ">=") return value >= limit;
  if (symbol == "<>") return value != limit;
  if (symbol == "=") return value == limit;
  if (symbol == "<") return value < limit;
  return value > limit;
}

// Commas count as blanks, and runs of blanks separate once.
std::vector<std::string> Tokens(std::string_view rule) {
  std::string spaced(rule);
  for (char& c : spaced) {
    if (c == ',') c = ' ';
  }
  std::vector<std::string> tokens;
  std::istringstream words(spaced);
  for (std::string token; words >> token;) tokens.push_back(token);
  return tokens;
}

bool Critical(Prompt& prompt, std::string title, std::string text) {
  prompt.Show({std::move(title), std::move(text), PromptIcon::Stop, PromptButtons::Ok});
  return false;
}

bool TypeMismatch(Prompt& prompt) {
  return Critical(prompt, "Error", "  Type mismatch  ");
}

bool NumericFormatError(Prompt& prompt) {
  rangeErrorFlag = true;
  return Critical(prompt, "Error", "  Numeric format error  ");
}

}  // namespace

bool CheckRule(Prompt& prompt, std::string_view rule, std::string_view text) {
  const std::vector<std::string> tokens = Tokens(rule);
  if (tokens.empty()) return true;
  const std::optional<double> value = FieldNumber(text);
  if (!value) return TypeMismatch(prompt);

  std::array<double, 2> limits{};
  std::string lastLimitText;
  std::string_view lastWords;
  bool result = true;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const std::string& token = tokens[i];
    const Operator* found = nullptr;
    std::size_t at = std::string::npos;
    for (const Operator& op : kOperators) {
      at = token.find(op.symbol);
      if (at != std::string::npos) {
        found = &op;
        break;
      }
    }
    if (found == nullptr) return Critical(prompt, "Logic Error", "Unable to process rule.");
    const std::string rest = token.substr(0, at) + token.substr(at + found->symbol.size());
    const std::optional<double> limit = FieldNumber(rest);
    if (!limit || i >= limits.size()) return TypeMismatch(prompt);
    limits[i] = *limit;
    lastLimitText = std::string(TrimBlanks(rest));
    lastWords = found->words;
    result = result && Holds(found->symbol, *value, *limit);
  }
  if (result) return true;
  if (tokens.size() == 1) {
    return Critical(prompt, kRangeErrorTitle,
                    "Valid value must be " + std::string(lastWords) + lastLimitText);
  }
  return Critical(prompt, kRangeErrorTitle,
                  "Valid values are numbers from " + wb::FormatNumber(limits[0], "0.000") + " to " +
                      wb::FormatNumber(limits[1], "0.000"));
}

bool CheckRange(Prompt& prompt, double limit1, double limit2, std::string& text) {
  rangeErrorFlag = false;
  text = std::string(TrimBlanks(text));
  if (!FieldNumber(text)) return NumericFormatError(prompt);
  for (char c : text) {
    if (c != '.' && (c < '0' || c > '9')) return NumericFormatError(prompt);
  }
  const double value = *FieldNumber(text);
  if (value < limit1 || value > limit2) {
    rangeErrorFlag = true;
    return Critical(prompt, kRangeErrorTitle,
                    "      Value   : " + wb::FormatNumber(value, "0.00") + std::string(kCr) +
                        std::string(kCr) + "      Limit1   : " + wb::FormatNumber(limit1, "0.000") +
                        std::string(kCr) + "      Limit2   : " + wb::FormatNumber(limit2, "0.000"));
  }
  return true;
}

bool RangeErrorFlag() {
  return rangeErrorFlag;
}

}  // namespace gustline::rules
