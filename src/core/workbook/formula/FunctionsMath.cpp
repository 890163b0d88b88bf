#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "core/workbook/formula/Functions.h"

namespace gustline::wb::functions {
namespace {

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// Rounds half away from zero on the value's 15-significant-digit decimal form, so that
// 2.675 rounds to 2.68 as it shows, not by its binary neighbour 2.67499999...
double RoundDecimal(double number, int digits) {
  if (number == 0 || !std::isfinite(number)) return number;
  // Away from a tie the binary value rounds the same way as its decimal form: scale,
  // round and scale back exactly.
  if (digits >= -15 && digits <= 15) {
    const double scale = kPowersOfTen[std::abs(digits)];
    const double scaled = std::fabs(digits >= 0 ? number * scale : number / scale);
    const double fraction = scaled - std::floor(scaled);
    if (scaled < 1e9 && std::fabs(fraction - 0.5) > 1e-5) {
      const double whole = fraction > 0.5 ? std::floor(scaled) + 1 : std::floor(scaled);
      const double magnitude = digits >= 0 ? whole / scale : whole * scale;
      return number < 0 ? -magnitude : magnitude;
    }
  }
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(number));
  std::string mantissa;  // 15 digits, the first before the point
  const char* p = buffer;
  for (; *p != 'e'; ++p) {
    if (*p != '.') mantissa += *p;
  }
  int exponent = std::atoi(p + 1);
  const int keep = exponent + 1 + digits;  // digits kept from the first
  if (keep >= static_cast<int>(mantissa.size()))
    return std::strtod(buffer, nullptr) * (number < 0 ? -1 : 1);
  if (keep < 0) return 0;
  std::string kept = mantissa.substr(0, static_cast<std::size_t>(keep));
  if (mantissa[static_cast<std::size_t>(keep)] >= '5') {
    int i = keep - 1;
    for (; i >= 0 && kept[static_cast<std::size_t>(i)] == '9'; --i)
      kept[static_cast<std::size_t>(i)] = '0';
    if (i >= 0) {
      ++kept[static_cast<std::size_t>(i)];
    } else {
      kept.insert(kept.begin(), '1');
      ++exponent;
    }
  }
  if (kept.empty()) return 0;
  const std::string text = "0." + kept + "e" + std::to_string(exponent + 1);
  const double magnitude = std::strtod(text.c_str(), nullptr);
  return number < 0 ? -magnitude : magnitude;
}

// Days since 1899-12-30 of a civil date.
double SerialDay(int year, int month, int day) {
  year -= month <= 2 ? 1 : 0;
  const int era = (year >= 0 ? year : year - 399) / 400;
  const int yearOfEra = year - era * 400;
  const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  const double daysFrom1970 = era * 146097.0 + dayOfEra - 719468;
  return daysFrom1970 + 25569;
}

double NowSerial() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const double seconds = local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec;
  return SerialDay(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) + seconds / 86400;
}

enum class Fold { Sum, Max, Min };

// SUM, MAX and MIN: ranges give their numbers only, direct arguments convert.
Operand Aggregate(Evaluator& ev, const Formula::Node& node, Fold fold) {
  const Formula& f = ev.GetFormula();
  double sum = 0;
  double best = 0;
  bool any = false;
  const auto take = [&](double number) {
    sum += number;
    if (!any || (fold == Fold::Max ? number > best : number < best)) best = number;
    any = true;
  };
  for (int i = 0; i < node.count; ++i) {
    const Operand arg = ev.Eval(f.KidIndex(node, i));
    if (arg.isRef) {
      const Value* error = VisitRange(arg.ref, [&](const Value& value) {
        if (value.IsNumber()) take(value.AsNumber());
      });
      if (error) return Operand::Of(*error);
      continue;
    }
    if (arg.value.IsEmpty()) continue;
    double number = 0;
    if (auto error = ToNumber(arg.value, number)) return ErrorOperand(*error);
    take(number);
  }
  return Operand::Of(NumberResult(fold == Fold::Sum ? sum : best));
}

// A function of the number its first argument converts to; the argument's error otherwise.
template <typename Body>
Operand OfNumber(Evaluator& ev, const Formula::Node& node, Body body) {
  double x = 0;
  if (auto error = ToNumber(ev.Scalar(ev.GetFormula().KidIndex(node, 0)), x))
    return ErrorOperand(*error);
  return body(x);
}

}  // namespace

Operand Sum(Evaluator& ev, const Formula::Node& node) {
  return Aggregate(ev, node, Fold::Sum);
}

Operand Max(Evaluator& ev, const Formula::Node& node) {
  return Aggregate(ev, node, Fold::Max);
}

Operand Min(Evaluator& ev, const Formula::Node& node) {
  return Aggregate(ev, node, Fold::Min);
}

Operand Now(Evaluator&, const Formula::Node&) {
  return Operand::Of(Value::Number(NowSerial()));
}

Operand Abs(Evaluator& ev, const Formula::Node& node) {
  return OfNumber(ev, node, [](double x) { return Operand::Of(Value::Number(std::fabs(x))); });
}

Operand Sign(Evaluator& ev, const Formula::Node& node) {
  return OfNumber(
      ev, node, [](double x) { return Operand::Of(Value::Number(x > 0 ? 1 : (x < 0 ? -1 : 0))); });
}

Operand Ln(Evaluator& ev, const Formula::Node& node) {
  return OfNumber(ev, node, [](double x) {
    if (x <= 0) return ErrorOperand(ErrorCode::Num);
    return Operand::Of(NumberResult(std::log(x)));
  });
}

Operand Exp(Evaluator& ev, const Formula::Node& node) {
  return OfNumber(ev, node, [](double x) { return Operand::Of(NumberResult(std::exp(x))); });
}

Operand Sqrt(Evaluator& ev, const Formula::Node& node) {
  return OfNumber(ev, node, [](double x) {
    if (x < 0) return ErrorOperand(ErrorCode::Num);
    return Operand::Of(Value::Number(std::sqrt(x)));
  });
}

Operand Round(Evaluator& ev, const Formula::Node& node) {
  return OfNumber(ev, node, [&](double x) {
    double digits = 0;
    if (auto error = ToNumber(ev.Scalar(ev.GetFormula().KidIndex(node, 1)), digits))
      return ErrorOperand(*error);
    digits = std::trunc(std::fmax(-400.0, std::fmin(400.0, digits)));
    return Operand::Of(NumberResult(RoundDecimal(x, static_cast<int>(digits))));
  });
}

}  // namespace gustline::wb::functions
