#include <gtest/gtest.h>

#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// Texts order by their upper-cased bytes, as the language compares texts and MATCH finds them.
TEST(TextCompare, OrdersByUpperCasedBytes) {
  const struct {
    const char* a;
    const char* b;
    bool equal;
    bool less;
  } cases[] = {
      {"Sheet1", "SHEET1", true, false},
      {"abc", "ABD", false, true},
      {"ABD", "abc", false, false},
      {"ab", "ABC", false, true},  // a text before any longer one it begins
      {"", "a", false, true},
      {"Z", "_", false, true},  // '_' after the letters, whatever their case
      {"z", "_", false, true},
      {"z", "\xC3\xA9", false, true},  // bytes above ASCII after every letter, kept as they are
      {"\xC3\xA9", "\xC3\x89", false, false},  // and never folded
  };
  for (const auto& c : cases) {
    EXPECT_EQ(EqualNoCase(c.a, c.b), c.equal) << c.a << " " << c.b;
    EXPECT_EQ(LessNoCase(c.a, c.b), c.less) << c.a << " " << c.b;
  }
}

}  // namespace
}  // namespace gustline::wb
