#include "core/workbook/value/NumberFormat.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/workbook/value/DateFormat.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// A column in the default width shows at most this many characters of a "General" number.
constexpr int kGeneralWidth = 11;
// Numbers show from their decimal form to the precision a spreadsheet keeps.
constexpr int kSignificantDigits = 15;

// A non-negative decimal: 0.d1d2d3... times 10^point, so that `point` digits stand before
// the decimal point. No leading or trailing zeros in `digits`; empty digits is zero.
struct Decimal {
  std::string digits;
  int point = 0;
};

Decimal ToDecimal(double magnitude) {
  Decimal decimal;
  if (magnitude == 0) return decimal;
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                    std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view text(buffer, static_cast<std::size_t>(result.ptr - buffer));
  const std::size_t e = text.find('e');
  for (std::size_t i = 0; i < e; ++i)
    if (text[i] != '.') decimal.digits += text[i];
  decimal.point = std::atoi(std::string(text.substr(e + 1)).c_str()) + 1;
  while (!decimal.digits.empty() && decimal.digits.back() == '0') decimal.digits.pop_back();
  return decimal;
}

// Keeps `count` digits, rounding half away from zero; the point moves when a carry adds one.
Decimal KeepDigits(Decimal decimal, int count) {
  if (count < 0) return {};
  if (static_cast<int>(decimal.digits.size()) <= count) return decimal;
  const bool roundUp = decimal.digits[static_cast<std::size_t>(count)] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(count));
  if (roundUp) {
    int i = count - 1;
    while (i >= 0 && decimal.digits[static_cast<std::size_t>(i)] == '9') {
      decimal.digits[static_cast<std::size_t>(i)] = '0';
      --i;
    }
    if (i < 0) {
      decimal.digits.insert(decimal.digits.begin(), '1');
      ++decimal.point;
    } else {
      ++decimal.digits[static_cast<std::size_t>(i)];
    }
  }
  while (!decimal.digits.empty() && decimal.digits.back() == '0') decimal.digits.pop_back();
  if (decimal.digits.empty()) decimal.point = 0;
  return decimal;
}

Decimal RoundToDecimals(const Decimal& decimal, int decimals) {
  return KeepDigits(decimal, decimal.point + decimals);
}

std::string IntegerDigits(const Decimal& decimal) {
  if (decimal.point <= 0) return {};
  std::string digits = decimal.digits.substr(
      0, std::min(decimal.digits.size(), static_cast<std::size_t>(decimal.point)));
  digits.resize(static_cast<std::size_t>(decimal.point), '0');
  return digits;
}

std::string FractionDigits(const Decimal& decimal, int decimals) {
  std::string digits;
  for (int i = 0; i < decimals; ++i) {
    const int index = decimal.point + i;
    digits += (index >= 0 && index < static_cast<int>(decimal.digits.size()))
                  ? decimal.digits[static_cast<std::size_t>(index)]
                  : '0';
  }
  return digits;
}

std::string ExponentText(int exponent, bool alwaysSign, int minDigits) {
  std::string digits = std::to_string(std::abs(exponent));
  if (static_cast<int>(digits.size()) < minDigits)
    digits.insert(0, static_cast<std::size_t>(minDigits) - digits.size(), '0');
  if (exponent < 0) return "-" + digits;
  return alwaysSign ? "+" + digits : digits;
}

// One section of a format, taken apart.
struct Section {
  std::string prefix;  // literal text before the number
  std::string suffix;  // literal text after it
  bool general = false;
  bool hasDigits = false;  // any digit placeholder at all
  int intZeros = 0;        // "0" placeholders before the point: digits always shown
  int intSpaces = 0;       // "?" placeholders before the point: padded with blanks
  bool thousands = false;
  int minDecimals = 0;  // "0" after the point
  int maxDecimals = 0;  // "0", "#" and "?" after the point
  int percent = 0;
  bool scientific = false;
  bool exponentSign = false;  // "E+" rather than "E-"
  int exponentDigits = 0;
};

bool IsGeneralAt(std::string_view text, std::size_t at) {
  constexpr std::string_view kGeneral = "general";
  return EqualNoCase(text.substr(at, kGeneral.size()), kGeneral);
}

Section ParseSection(std::string_view text) {
  Section section;
  bool afterPoint = false;
  bool inExponent = false;
  auto literal = [&](std::string_view piece) {
    (section.hasDigits || section.general ? section.suffix : section.prefix) += piece;
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (IsGeneralAt(text, i)) {
      section.general = true;
      i += 6;
    } else if (c == '"') {
      const std::size_t close = text.find('"', i + 1);
      const std::size_t end = close == std::string_view::npos ? text.size() : close;
      literal(text.substr(i + 1, end - i - 1));
      i = end;
    } else if (c == '\\' || c == '_' || c == '*') {
      if (i + 1 < text.size()) {
        if (c == '\\') literal(text.substr(i + 1, 1));
        if (c == '_') literal(" ");
        ++i;
      }
    } else if (c == '[') {
      const std::size_t close = text.find(']', i);
      i = close == std::string_view::npos ? text.size() : close;
    } else if (c == '0' || c == '#' || c == '?') {
      section.hasDigits = true;
      if (inExponent) {
        if (c == '0') ++section.exponentDigits;
      } else if (afterPoint) {
        ++section.maxDecimals;
        if (c == '0') ++section.minDecimals;
      } else if (c == '0') {
        ++section.intZeros;
      } else if (c == '?') {
        ++section.intSpaces;
      }
    } else if (c == '.' && !inExponent && !section.general) {
      afterPoint = true;
      section.hasDigits = true;
    } else if (c == ',' && section.hasDigits && !afterPoint && !inExponent) {
      section.thousands = true;
    } else if (c == '%') {
      ++section.percent;
      literal("%");
    } else if ((c == 'E' || c == 'e') && section.hasDigits && i + 1 < text.size() &&
               (text[i + 1] == '+' || text[i + 1] == '-')) {
      section.scientific = true;
      section.exponentSign = text[i + 1] == '+';
      inExponent = true;
      ++i;
    } else if (c != '@') {
      literal(text.substr(i, 1));
    }
  }
  return section;
}

std::vector<std::string_view> SplitSections(std::string_view format) {
  std::vector<std::string_view> sections;
  std::size_t start = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] == '"') {
      quoted = !quoted;
    } else if (!quoted && format[i] == '\\') {
      ++i;
    } else if (!quoted && format[i] == ';') {
      sections.push_back(format.substr(start, i - start));
      start = i + 1;
    }
  }
  sections.push_back(format.substr(start));
  return sections;
}

std::string Grouped(const std::string& digits) {
  std::string grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) grouped += ',';
    grouped += digits[i];
  }
  return grouped;
}

// "1.23457E+11": as many mantissa digits as fit in `width` characters.
std::string GeneralScientific(const Decimal& decimal, int width) {
  for (int decimals = width; decimals >= 0; --decimals) {
    const Decimal rounded = KeepDigits(decimal, decimals + 1);
    const int exponent = rounded.point - 1;
    std::string mantissa = rounded.digits.empty() ? "0" : rounded.digits.substr(0, 1);
    if (rounded.digits.size() > 1) mantissa += "." + rounded.digits.substr(1);
    std::string text = mantissa + "E" + ExponentText(exponent, true, 2);
    if (static_cast<int>(text.size()) <= width || decimals == 0) return text;
  }
  return {};
}

// A number as a spreadsheet column of the default width shows it in "General": fixed
// notation from 1E-05 to below 1E+11 when it fits in 11 characters (sign and point
// included), trailing zeros dropped; otherwise scientific with a two-digit exponent.
std::string GeneralText(const Decimal& decimal, bool negative) {
  if (decimal.digits.empty()) return "0";
  const int width = kGeneralWidth - (negative ? 1 : 0);
  const int exponent = decimal.point - 1;
  if (exponent >= -5 && exponent <= 10) {
    const int integerDigits = std::max(decimal.point, 1);
    const int decimals = std::max(width - integerDigits - 1, 0);
    const Decimal rounded = RoundToDecimals(decimal, decimals);
    std::string text = IntegerDigits(rounded);
    if (text.empty()) text = "0";
    const int shown = std::max(static_cast<int>(rounded.digits.size()) - rounded.point, 0);
    if (shown > 0) text += "." + FractionDigits(rounded, shown);
    if (static_cast<int>(text.size()) <= width) return text;
  }
  return GeneralScientific(decimal, width);
}

std::string FixedText(const Section& section, const Decimal& decimal) {
  const Decimal rounded = RoundToDecimals(decimal, section.maxDecimals);
  std::string integer = IntegerDigits(rounded);
  if (static_cast<int>(integer.size()) < section.intZeros)
    integer.insert(0, static_cast<std::size_t>(section.intZeros) - integer.size(), '0');
  if (section.thousands) integer = Grouped(integer);
  const int padded = section.intZeros + section.intSpaces;
  if (static_cast<int>(integer.size()) < padded)
    integer.insert(0, static_cast<std::size_t>(padded) - integer.size(), ' ');
  std::string fraction = FractionDigits(rounded, section.maxDecimals);
  while (static_cast<int>(fraction.size()) > section.minDecimals && fraction.back() == '0')
    fraction.pop_back();
  return section.maxDecimals > 0 ? integer + "." + fraction : integer;
}

std::string ScientificText(const Section& section, const Decimal& decimal) {
  const int integerDigits = std::max(section.intZeros + section.intSpaces, 1);
  int exponent = 0;
  Decimal rounded;
  if (!decimal.digits.empty()) {
    rounded = KeepDigits(decimal, integerDigits + section.maxDecimals);
    exponent = rounded.point - integerDigits;
    rounded.point = rounded.digits.empty() ? 0 : integerDigits;
  }
  std::string integer = IntegerDigits(rounded);
  if (integer.empty()) integer = "0";
  std::string fraction = FractionDigits(rounded, section.maxDecimals);
  while (static_cast<int>(fraction.size()) > section.minDecimals && fraction.back() == '0')
    fraction.pop_back();
  std::string text = fraction.empty() ? integer : integer + "." + fraction;
  return text + "E" + ExponentText(exponent, section.exponentSign, section.exponentDigits);
}

bool ShowsNonZero(const std::string& text) {
  return text.find_first_of("123456789") != std::string::npos;
}

}  // namespace

std::string FormatNumber(double number, std::string_view format) {
  if (!std::isfinite(number)) return std::string(ErrorText(ErrorCode::Num));
  const std::vector<std::string_view> sections = SplitSections(format);
  std::string_view chosen = sections[0];
  bool signShown = true;
  if (number < 0 && sections.size() >= 2) {
    chosen = sections[1];
    signShown = false;
  } else if (number == 0 && sections.size() >= 3) {
    chosen = sections[2];
  }
  if (chosen.empty() && sections.size() == 1) chosen = "General";
  if (auto date = FormatDate(number, chosen)) return *date;

  const Section section = ParseSection(chosen);
  Decimal decimal = ToDecimal(std::fabs(number));
  if (!decimal.digits.empty()) decimal.point += 2 * section.percent;

  std::string body;
  if (section.general || !section.hasDigits) {
    body = section.general ? GeneralText(decimal, number < 0 && signShown) : "";
  } else if (section.scientific) {
    body = ScientificText(section, decimal);
  } else {
    body = FixedText(section, decimal);
  }
  const bool negative = number < 0 && signShown && ShowsNonZero(body);
  return (negative ? "-" : "") + section.prefix + body + section.suffix;
}

std::string DisplayText(const Value& value, std::string_view format) {
  return value.IsNumber() ? FormatNumber(value.AsNumber(), format) : PlainText(value);
}

}  // namespace gustline::wb
