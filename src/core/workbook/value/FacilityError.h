#pragma once

#include <stdexcept>
#include <string>

namespace gustline::wb {

// The numbered errors of the spreadsheet facility. Operations raise them; the command that
// is running catches them and reports "Gustline error : " with the text.
namespace errc {
inline constexpr int kBadArgument = 20001;      // an argument out of its range
inline constexpr int kBadReference = 20002;     // a cell or range text that does not read
inline constexpr int kUnknownName = 20003;      // a defined name that the book does not hold
inline constexpr int kFormulaSyntax = 20004;    // a formula that does not parse
inline constexpr int kBadSheet = 20005;         // a sheet number out of range
inline constexpr int kFileOpen = 20010;         // a file that cannot be opened for reading
inline constexpr int kFileCorrupt = 20011;      // a file that is truncated or not of its type
inline constexpr int kFileWrite = 20012;        // a file that cannot be written
inline constexpr int kFileType = 20013;         // a file type that this facility does not handle
inline constexpr int kTemplateMissing = 20014;  // a report template that is not built yet
inline constexpr int kNoPrinter = 20024;        // no printer on the system
inline constexpr int kDialogCancelled = 32755;  // the user cancelled the file dialog
}  // namespace errc

class FacilityError : public std::runtime_error {
 public:
  FacilityError(int number, const std::string& text) : std::runtime_error(text), number_(number) {}
  int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace gustline::wb
