#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gustline::wb {

// The error values of a calculation. A formula never throws: it yields one of these.
enum class ErrorCode : std::uint8_t { Null, Div0, Value, Ref, Name, Num, NA };

// "#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A".
std::string_view ErrorText(ErrorCode code);
std::optional<ErrorCode> ErrorFromText(std::string_view text);

// What a cell shows or a formula yields: nothing, a number, a text, a boolean or an error.
class Value {
 public:
  enum class Kind : std::uint8_t { Empty, Number, Text, Boolean, Error };

  Value() = default;
  static Value Number(double number);
  static Value Text(std::string text);
  static Value Boolean(bool flag);
  static Value Error(ErrorCode code);

  Kind GetKind() const { return kind_; }
  bool IsEmpty() const { return kind_ == Kind::Empty; }
  bool IsNumber() const { return kind_ == Kind::Number; }
  bool IsText() const { return kind_ == Kind::Text; }
  bool IsBoolean() const { return kind_ == Kind::Boolean; }
  bool IsError() const { return kind_ == Kind::Error; }

  // The number of a Number, 1 or 0 for a Boolean, 0 otherwise.
  double AsNumber() const { return number_; }
  bool AsBoolean() const { return number_ != 0; }
  // The text of a Text, empty otherwise.
  const std::string& AsText() const { return text_; }
  ErrorCode AsError() const { return error_; }

  bool operator==(const Value& other) const = default;

 private:
  Kind kind_ = Kind::Empty;
  ErrorCode error_ = ErrorCode::Null;
  double number_ = 0;
  std::string text_;
};

// The shortest text that reads back to the same double: "17.428542112355654", "0.5", "1", "-0".
// Plain decimals from 1e-5 up to 1e21; beyond, the exponent form "1e+21", "1.5e-07".
std::string FormatShortest(double number);

// The number a text reads as wholly, leading and trailing blanks aside: "1e3", "-0.5", ".5",
// "+2". Texts such as "inf", "1e999" or "12 ft" are no numbers.
std::optional<double> ReadNumber(std::string_view text);

// A value as the command-line tools print it: numbers by FormatShortest, texts as they are,
// "TRUE"/"FALSE", error texts, and an empty text for nothing.
std::string PlainText(const Value& value);

}  // namespace gustline::wb
