#include <gtest/gtest.h>

#include "report/qt/QtPrompt.h"

namespace gustline {
namespace {

TEST(QtFileFilter, TurnsBarSeparatedFiltersIntoQtFiltersOfEitherCase) {
  struct Case {
    const char* filter;
    const char* expected;
  };
  constexpr Case kCases[] = {
      {"Project Files (*.GLN)|*.GLN|All Files (*.*)|*.*",
       "Project Files (*.GLN *.gln);;All Files (*.*)"},
      {"Template (*.GLT)|*.GLT", "Template (*.GLT *.glt)"},
      {"DXF|*.dxf", "DXF (*.dxf *.DXF)"},
      {"Projects|*.GLN;*.GLZ", "Projects (*.GLN *.gln *.GLZ *.glz)"},
      {"", ""},
  };
  for (const Case& test : kCases)
    EXPECT_EQ(QtFileFilter(test.filter).toStdString(), test.expected) << test.filter;
}

}  // namespace
}  // namespace gustline
