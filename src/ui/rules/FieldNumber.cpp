#include "ui/rules/FieldNumber.h"

#include <cctype>
#include <charconv>
#include <string>

#include "core/TextTools.h"

namespace gustline::rules {

std::optional<double> FieldNumber(std::string_view text) {
  std::string_view trimmed = TrimBlanks(text);
  if (!trimmed.empty() && trimmed.front() == '+') trimmed.remove_prefix(1);
  if (trimmed.empty() || std::isspace(static_cast<unsigned char>(trimmed.front()))) {
    return std::nullopt;
  }
  // from_chars takes no "inf" or "nan" words here: a field holds digits only.
  for (char c : trimmed) {
    if (std::isalpha(static_cast<unsigned char>(c)) && c != 'e' && c != 'E') return std::nullopt;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), value);
  if (error != std::errc() || end != trimmed.data() + trimmed.size()) return std::nullopt;
  return value;
}

double FieldValue(std::string_view text) {
  return FieldNumber(text).value_or(0.0);
}

}  // namespace gustline::rules
