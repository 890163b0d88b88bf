#pragma once

namespace gustline {

namespace wb {
class Workbook;
}

// The check of a project or template just read: the one place for a format check. Every
// book passes for now.
bool TestProjectFile(wb::Workbook& project);

}  // namespace gustline
