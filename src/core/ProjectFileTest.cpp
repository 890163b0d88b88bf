#include "core/ProjectFileTest.h"

namespace gustline {

bool TestProjectFile(wb::Workbook& /*project*/) {
  return true;
}

}  // namespace gustline
