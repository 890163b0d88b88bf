#pragma once

#include <string>

namespace gustline::wb {
class Workbook;
}

namespace gustline::cli {

// Why the generator left the report empty, in the words of the decision tables; the
// messages the build itself gave are told apart.
std::string NoReportReason(wb::Workbook& project);

}  // namespace gustline::cli
