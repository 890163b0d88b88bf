#include <gtest/gtest.h>

#include "DialogTesting.h"
#include "factors/qt/frmMinPressure.h"

namespace gustline {
namespace {

using testing::DialogApp;

struct MinPressureCase {
  int stored;
  bool ticked;  // as the box opens
  bool ok;      // OK rather than Cancel after the box is flipped
  int written;
  double minPressure;
};

TEST(MinPressureTest, BoxLoadsFromTheCellAndOnlyOkWritesItBack) {
  const MinPressureCase cases[] = {
      {1, true, true, 0, 0}, {0, false, true, 1, 10}, {1, true, false, 1, 10}};
  for (const MinPressureCase& c : cases) {
    DialogApp d;
    wb::WriteNamedInt(d.Project(), "UseMinWindPressure", c.stored);
    frmMinPressure dialog(d.app);
    EXPECT_EQ(dialog.Values().useMinimum, c.ticked) << c.stored;
    dialog.ShowValues({!c.ticked});
    if (c.ok) {
      dialog.Command1_Click();
    } else {
      dialog.reject();
    }
    EXPECT_EQ(d.Number("UseMinWindPressure"), c.written) << c.stored << c.ok;
    EXPECT_EQ(d.Number("MinPressure"), c.minPressure) << c.stored << c.ok;
    EXPECT_EQ(d.state.modifiedFlag, c.ok);
    EXPECT_EQ(d.report.reports, c.ok ? 1 : 0);
  }
}

}  // namespace
}  // namespace gustline
