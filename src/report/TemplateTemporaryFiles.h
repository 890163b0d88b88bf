#pragma once

#include <string_view>

namespace gustline::report {

// The maintenance key Ctrl+Alt+W: every built template of containers A, B, F and D written
// to its temporary file, as a report build would write it. Facility errors propagate.
void WriteTemplateTemporaryFiles(std::string_view applicationPath);

}  // namespace gustline::report
