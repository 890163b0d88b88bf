#pragma once

namespace gustline {

namespace wb {
class FacilityError;
}
class Prompt;

// The common report of a facility error that a command does not handle itself: a stop box
// titled "Error" with "Gustline error : " and the facility's text. Numbers 0 and 23 pass
// in silence.
void ReportFacilityError(Prompt& prompt, const wb::FacilityError& error);

}  // namespace gustline
