#include "core/FacilityErrorReport.h"

#include <string>

#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {

void ReportFacilityError(Prompt& prompt, const wb::FacilityError& error) {
  if (error.Number() == 0 || error.Number() == 23) return;
  prompt.Show(Message{"Error", "Gustline error : " + std::string(kCrLf) + error.what(),
                      PromptIcon::Stop, PromptButtons::Ok});
}

}  // namespace gustline
