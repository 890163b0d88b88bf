#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace gustline::wb {
class Formula;
class Workbook;
}  // namespace gustline::wb

namespace gustline::books {

// What the parser lets through but a finished book must not hold: an unknown function, a
// name the book does not define (unless mayBeUndefined allows it), a sheet it does not have,
// or a link into another book that is not open, lacks the sheet or does not define the name.
// Empty when the formula has none of these.
std::string FormulaFault(const wb::Formula& formula, const wb::Workbook& book,
                         const std::function<bool(std::string_view)>& mayBeUndefined);

}  // namespace gustline::books
