#include "SampleBooks.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "core/ProcessState.h"

namespace gustline::report::testing {
namespace {

// Widgets, fonts and painters need an application object for the whole test run.
class QtApplicationEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    if (QCoreApplication::instance() == nullptr)
      application_ = std::make_unique<QApplication>(argc_, argv_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[16] = "report_qt";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new QtApplicationEnvironment);

}  // namespace

std::unique_ptr<wb::Workbook> VelocityPressureBook() {
  auto book = std::make_unique<wb::Workbook>("Figure66A");
  book->SetSheetName(1, "Page 1");
  book->GetSheet(1).Print() = DefaultPageSetup();
  book->SetColumnWidth(1, 1, 3);
  book->SetColumnWidth(2, 2, 30);
  book->SetColumnWidth(3, 5, 12);

  Put(*book, 1, 2, "Velocity Pressure, qz", Styled(14, true));
  Put(*book, 3, 2, "Basic wind speed, V");
  Put(*book, 3, 3, "100", Styled(10, false, wb::HAlign::General, "0.0"));
  Put(*book, 3, 4, "mph", Styled(10, false, wb::HAlign::Left));
  Put(*book, 4, 2, "Importance factor, I");
  Put(*book, 4, 3, "1.15", Styled(10, false, wb::HAlign::General, "0.00"));
  Put(*book, 5, 2, "Exposure coefficient, Kz");
  Put(*book, 5, 3, "0.849", Styled(10, false, wb::HAlign::General, "0.000"));
  Put(*book, 6, 2, "Topographic factor, Kzt");
  Put(*book, 6, 3, "1", Styled(10, false, wb::HAlign::General, "0.00"));
  Put(*book, 7, 2, "Directionality factor, Kd");
  Put(*book, 7, 3, "0.85", Styled(10, false, wb::HAlign::General, "0.00"));
  Put(*book, 9, 2, "qz = 0.00256 Kz Kzt Kd V^2 I", Styled(10, false, wb::HAlign::Left));
  wb::CellStyle result = Styled(10, true, wb::HAlign::General, "#,##0.00");
  result.fill = 0xDDEEFF;
  result.top.style = result.bottom.style = result.left.style = result.right.style = 2;
  Put(*book, 9, 4, "=0.00256*C5*C6*C7*C3^2*C4", result);
  Put(*book, 9, 5, "psf", Styled(10, false, wb::HAlign::Left));
  Put(*book, 11, 2, "This line is longer than its column and runs on into the empty cells.");

  // A box round the inputs: thin inside, a double line under the block.
  for (int row = 3; row <= 7; ++row)
    for (int col = 2; col <= 4; ++col) {
      book->SetActiveCell(row, col);
      book->SetBorder(-1, 1, 1, 1, row == 7 ? 6 : 1, -1, -1, -1, -1, -1, -1);
    }
  book->SetActiveCell(1, 1);
  book->Recalc();
  return book;
}

}  // namespace gustline::report::testing
