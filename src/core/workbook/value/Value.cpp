#include "core/workbook/value/Value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

constexpr std::array<std::string_view, 7> kErrorTexts = {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!",
                                                         "#NAME?", "#NUM!",   "#N/A"};

}  // namespace

std::string_view ErrorText(ErrorCode code) {
  return kErrorTexts[static_cast<std::size_t>(code)];
}

std::optional<ErrorCode> ErrorFromText(std::string_view text) {
  for (std::size_t i = 0; i < kErrorTexts.size(); ++i)
    if (EqualNoCase(text, kErrorTexts[i])) return static_cast<ErrorCode>(i);
  return std::nullopt;
}

Value Value::Number(double number) {
  Value value;
  value.kind_ = Kind::Number;
  value.number_ = number;
  return value;
}

Value Value::Text(std::string text) {
  Value value;
  value.kind_ = Kind::Text;
  value.text_ = std::move(text);
  return value;
}

Value Value::Boolean(bool flag) {
  Value value;
  value.kind_ = Kind::Boolean;
  value.number_ = flag ? 1 : 0;
  return value;
}

Value Value::Error(ErrorCode code) {
  Value value;
  value.kind_ = Kind::Error;
  value.error_ = code;
  return value;
}

std::string FormatShortest(double number) {
  std::array<char, 400> buffer;
  const double magnitude = std::fabs(number);
  const bool plain = magnitude == 0 || (magnitude >= 1e-5 && magnitude < 1e21);
  const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format);
  return std::string(buffer.data(), result.ptr);
}

std::optional<double> ReadNumber(std::string_view text) {
  text = TrimBlanks(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
    return std::nullopt;
  return number;
}

std::string PlainText(const Value& value) {
  switch (value.GetKind()) {
    case Value::Kind::Number:
      return FormatShortest(value.AsNumber());
    case Value::Kind::Text:
      return value.AsText();
    case Value::Kind::Boolean:
      return value.AsBoolean() ? "TRUE" : "FALSE";
    case Value::Kind::Error:
      return std::string(ErrorText(value.AsError()));
    case Value::Kind::Empty:
      break;
  }
  return {};
}

}  // namespace gustline::wb
