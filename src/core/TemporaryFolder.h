#pragma once

#include <string>

namespace gustline {

// The running process's own folder for its temporary workbooks: made private (mode 0700,
// a unique name in the system's temporary folder) when first asked for, and removed with
// whatever it holds when the process ends. Two runs never share it, and the program's
// folder need not be writable. Raises FacilityError(errc::kFileWrite) when it cannot be made.
const std::string& TemporaryFolder();

}  // namespace gustline
