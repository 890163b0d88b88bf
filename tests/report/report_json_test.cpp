#include <gtest/gtest.h>

#include <string>

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Utf8.h"
#include "report/ReportJson.h"

namespace gustline::report {
namespace {

TEST(ReportJson, StringsAreStrictJsonWhateverTheBytes) {
  struct Case {
    std::string text;
    const char* json;
  };
  const Case cases[] = {
      {"Exposure \"C\" \\ 90", "\"Exposure \\\"C\\\" \\\\ 90\""},
      {"\xce\xa8 \xe2\x82\xac", "\"\xce\xa8 \xe2\x82\xac\""},
      {"caf\xe9 \x93q\x94 \x81", "\"caf\xc3\xa9 \xe2\x80\x9cq\xe2\x80\x9d \xef\xbf\xbd\""},
      {std::string("\x1b[2J\t\n\x7f\0", 8), "\"\\u001b[2J\\t\\n\x7f\\u0000\""},
      {"\xff\x1f", "\"\xc3\xbf\\u001f\""},
  };
  for (const Case& c : cases) EXPECT_EQ(JsonString(c.text), c.json) << c.json;
}

// A project of old, its texts in code page 1252, gives a report that JSON readers accept.
TEST(ReportJson, AReportOfCodePageTextsIsUtf8) {
  wb::Workbook report("ServerSS");
  report.SetSheetName(1, "P\xe1gina 1");
  report.SetCellText(1, 1,
                     "Stra\xdf"
                     "e \x96 5\xb0");
  report.SetCellFormula(2, 1, "A1&\"\x85\"");
  const std::string json = ReportJson(report, "Figure66A");
  EXPECT_TRUE(wb::IsUtf8(json)) << json;
  EXPECT_NE(json.find("\"P\xc3\xa1gina 1\""), std::string::npos) << json;
  EXPECT_NE(json.find("\"Stra\xc3\x9f"
                      "e \xe2\x80\x93 5\xc2\xb0\xe2\x80\xa6\""),
            std::string::npos)
      << json;
}

}  // namespace
}  // namespace gustline::report
