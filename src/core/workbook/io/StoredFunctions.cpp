#include "core/workbook/io/StoredFunctions.h"

#include <algorithm>
#include <iterator>

namespace gustline::wb {
namespace {

constexpr int kVar = kVariableArguments;

// Sorted by number. Beyond the functions our workbooks use, the common ones, so that a
// book using another reads with that name and shows #NAME? where the engine lacks it.
constexpr StoredFunction kFunctions[] = {
    {0, "COUNT", kVar},
    {1, "IF", kVar},
    {2, "ISNA", 1},
    {3, "ISERROR", 1},
    {4, "SUM", kVar},
    {5, "AVERAGE", kVar},
    {6, "MIN", kVar},
    {7, "MAX", kVar},
    {8, "ROW", kVar},
    {9, "COLUMN", kVar},
    {10, "NA", 0},
    {11, "NPV", kVar},
    {12, "STDEV", kVar},
    {13, "DOLLAR", kVar},
    {14, "FIXED", kVar},
    {15, "SIN", 1},
    {16, "COS", 1},
    {17, "TAN", 1},
    {18, "ATAN", 1},
    {19, "PI", 0},
    {20, "SQRT", 1},
    {21, "EXP", 1},
    {22, "LN", 1},
    {23, "LOG10", 1},
    {24, "ABS", 1},
    {25, "INT", 1},
    {26, "SIGN", 1},
    {27, "ROUND", 2},
    {28, "LOOKUP", kVar},
    {29, "INDEX", kVar},
    {30, "REPT", 2},
    {31, "MID", 3},
    {32, "LEN", 1},
    {33, "VALUE", 1},
    {34, "TRUE", 0},
    {35, "FALSE", 0},
    {36, "AND", kVar},
    {37, "OR", kVar},
    {38, "NOT", 1},
    {39, "MOD", 2},
    {46, "VAR", kVar},
    {48, "TEXT", 2},
    {63, "RAND", 0},
    {64, "MATCH", kVar},
    {65, "DATE", 3},
    {66, "TIME", 3},
    {67, "DAY", 1},
    {68, "MONTH", 1},
    {69, "YEAR", 1},
    {70, "WEEKDAY", kVar},
    {71, "HOUR", 1},
    {72, "MINUTE", 1},
    {73, "SECOND", 1},
    {74, "NOW", 0},
    {76, "ROWS", 1},
    {77, "COLUMNS", 1},
    {78, "OFFSET", kVar},
    {82, "SEARCH", kVar},
    {86, "TYPE", 1},
    {97, "ATAN2", 2},
    {98, "ASIN", 1},
    {99, "ACOS", 1},
    {100, "CHOOSE", kVar},
    {101, "HLOOKUP", kVar},
    {102, "VLOOKUP", kVar},
    {105, "ISREF", 1},
    {109, "LOG", kVar},
    {111, "CHAR", 1},
    {112, "LOWER", 1},
    {113, "UPPER", 1},
    {114, "PROPER", 1},
    {115, "LEFT", kVar},
    {116, "RIGHT", kVar},
    {117, "EXACT", 2},
    {118, "TRIM", 1},
    {119, "REPLACE", 4},
    {120, "SUBSTITUTE", kVar},
    {121, "CODE", 1},
    {124, "FIND", kVar},
    {126, "ISERR", 1},
    {127, "ISTEXT", 1},
    {128, "ISNUMBER", 1},
    {129, "ISBLANK", 1},
    {130, "T", 1},
    {131, "N", 1},
    {140, "DATEVALUE", 1},
    {141, "TIMEVALUE", 1},
    {148, "INDIRECT", kVar},
    {162, "CLEAN", 1},
    {169, "COUNTA", kVar},
    {183, "PRODUCT", kVar},
    {184, "FACT", 1},
    {190, "ISNONTEXT", 1},
    {197, "TRUNC", kVar},
    {198, "ISLOGICAL", 1},
    {212, "ROUNDUP", 2},
    {213, "ROUNDDOWN", 2},
    {221, "TODAY", 0},
    {227, "MEDIAN", kVar},
    {228, "SUMPRODUCT", kVar},
    {229, "SINH", 1},
    {230, "COSH", 1},
    {231, "TANH", 1},
    {279, "EVEN", 1},
    {285, "FLOOR", 2},
    {288, "CEILING", 2},
    {298, "ODD", 1},
    {336, "CONCATENATE", kVar},
    {337, "POWER", 2},
    {342, "RADIANS", 1},
    {343, "DEGREES", 1},
    {345, "SUMIF", kVar},
    {346, "COUNTIF", 2},
    {347, "COUNTBLANK", 1},
};

static_assert(std::is_sorted(std::begin(kFunctions), std::end(kFunctions),
                             [](const StoredFunction& a, const StoredFunction& b) {
                               return a.number < b.number;
                             }));

}  // namespace

const StoredFunction* StoredFunctionOf(int number) {
  const auto* found = std::lower_bound(
      std::begin(kFunctions), std::end(kFunctions), number,
      [](const StoredFunction& function, int wanted) { return function.number < wanted; });
  return found != std::end(kFunctions) && found->number == number ? found : nullptr;
}

}  // namespace gustline::wb
