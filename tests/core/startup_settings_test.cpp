#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/StartupSettings.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

struct IntCase {
  std::string text;
  std::optional<int> expected;  // nullopt: the setting does not read
};

class SettingIntTest : public ::testing::TestWithParam<IntCase> {};

TEST_P(SettingIntTest, ReadsOrRaises) {
  const IntCase& c = GetParam();
  if (c.expected)
    EXPECT_EQ(SettingInt("Zoom", c.text), *c.expected);
  else
    EXPECT_THROW(SettingInt("Zoom", c.text), wb::FacilityError);
}

INSTANTIATE_TEST_SUITE_P(Texts, SettingIntTest,
                         ::testing::Values(IntCase{"5", 5}, IntCase{" 7 ", 7}, IntCase{"0", 0},
                                           IntCase{"2.5", 2}, IntCase{"3.5", 4}, IntCase{"-1", -1},
                                           IntCase{"32767", 32767}, IntCase{"32768", std::nullopt},
                                           IntCase{"", std::nullopt}, IntCase{"abc", std::nullopt},
                                           IntCase{"5x", std::nullopt}));

struct BoolCase {
  std::string text;
  std::optional<bool> expected;
};

class SettingBoolTest : public ::testing::TestWithParam<BoolCase> {};

TEST_P(SettingBoolTest, ReadsOrRaises) {
  const BoolCase& c = GetParam();
  if (c.expected)
    EXPECT_EQ(SettingBool("Toolbar", c.text), *c.expected);
  else
    EXPECT_THROW(SettingBool("Toolbar", c.text), wb::FacilityError);
}

INSTANTIATE_TEST_SUITE_P(Texts, SettingBoolTest,
                         ::testing::Values(BoolCase{"True", true}, BoolCase{"true", true},
                                           BoolCase{"FALSE", false}, BoolCase{"0", false},
                                           BoolCase{"-1", true}, BoolCase{"yes", std::nullopt},
                                           BoolCase{"", std::nullopt}));

}  // namespace
}  // namespace gustline
