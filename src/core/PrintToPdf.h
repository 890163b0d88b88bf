#pragma once

namespace gustline {

struct Application;

// File Print on a system without a printer: the report offered as a PDF file instead, the
// user asked first and then for the file's name. False when the user declines or cancels;
// a file that cannot be written raises FacilityError.
bool OfferReportPdf(Application& app);

}  // namespace gustline
