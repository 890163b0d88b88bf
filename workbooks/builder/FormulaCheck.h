#pragma once

#include <string>

namespace gustline::wb {
class Formula;
class Workbook;
}  // namespace gustline::wb

namespace gustline::books {

// What the parser lets through but a finished book must not hold: an unknown function, a
// name the book does not define, a sheet it does not have. Links into other books are not
// judged. Empty when the formula has none of these.
std::string FormulaFault(const wb::Formula& formula, const wb::Workbook& book);

}  // namespace gustline::books
