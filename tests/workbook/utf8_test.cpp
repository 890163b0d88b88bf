#include "core/workbook/value/Utf8.h"

#include <gtest/gtest.h>

#include <string>

#include "core/workbook/value/CodePage1252.h"

namespace gustline::wb {
namespace {

struct TextCase {
  std::string text;
  bool utf8;
  const char* printable;
};

TEST(Utf8, PrintableTextEscapesControlsAndStrayBytesOnly) {
  const TextCase cases[] = {
      {"Exposure C, 90 mph", true, "Exposure C, 90 mph"},
      {"\xce\xa8 = 0.85 \xe2\x82\xac \xf0\x9f\x8c\x80", true,
       "\xce\xa8 = 0.85 \xe2\x82\xac \xf0\x9f\x8c\x80"},
      {"tab\tline\nreturn\r", true, "tab\\tline\\nreturn\\r"},
      {std::string("\x1b[31mred\x07\x7f\0", 11), true, "\\x1b[31mred\\x07\\x7f\\x00"},
      {"csi \xc2\x9b"
       "2J",
       true, "csi \\xc2\\x9b2J"},
      {"caf\xe9 \x80", false, "caf\\xe9 \\x80"},
      {"overlong \xc0\xaf", false, "overlong \\xc0\\xaf"},
      {"surrogate \xed\xa0\x80", false, "surrogate \\xed\\xa0\\x80"},
      {"beyond \xf4\x90\x80\x80", false, "beyond \\xf4\\x90\\x80\\x80"},
      {"cut \xe2\x82", false, "cut \\xe2\\x82"},
  };
  for (const TextCase& c : cases) {
    EXPECT_EQ(IsUtf8(c.text), c.utf8) << c.printable;
    EXPECT_EQ(PrintableText(c.text), c.printable);
  }
}

TEST(CodePage1252, TakesTextsToAndFromUtf8) {
  struct Case {
    const char* bytes;
    const char* utf8;
  };
  const Case cases[] = {
      {"plain", "plain"},
      {"caf\xe9 \xb0"
       "F",
       "caf\xc3\xa9 \xc2\xb0"
       "F"},
      {"\x80 \x93quoted\x94 \x99", "\xe2\x82\xac \xe2\x80\x9cquoted\xe2\x80\x9d \xe2\x84\xa2"},
      {"\xff", "\xc3\xbf"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FromCodePage1252(c.bytes), c.utf8) << c.bytes;
    EXPECT_EQ(ToCodePage1252(c.utf8), c.bytes) << c.bytes;
  }
  EXPECT_EQ(FromCodePage1252("\x81\x8d"), "\xef\xbf\xbd\xef\xbf\xbd");
  EXPECT_EQ(ToCodePage1252("\xe2\x82 \xc0\xaf \xce\xa8"), "?? ?? ?");
}

}  // namespace
}  // namespace gustline::wb
