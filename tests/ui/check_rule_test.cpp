#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Prompt.h"
#include "ui/rules/CheckForm.h"
#include "ui/rules/CheckRule.h"

namespace gustline::rules {
namespace {

const Message kTypeMismatch{"Error", "  Type mismatch  ", PromptIcon::Stop, PromptButtons::Ok};

Message RangeError(const std::string& text) {
  return {kRangeErrorTitle, text, PromptIcon::Stop, PromptButtons::Ok};
}

struct RuleCase {
  const char* rule;
  const char* text;
  bool passes;
  std::vector<Message> messages;
};

class CheckRuleTest : public ::testing::TestWithParam<RuleCase> {};

TEST_P(CheckRuleTest, PassesOrGivesItsMessage) {
  const RuleCase& c = GetParam();
  ScriptedPrompt prompt;
  EXPECT_EQ(CheckRule(prompt, c.rule, c.text), c.passes);
  EXPECT_EQ(prompt.messages, c.messages);
}

const std::string kZeroTo45 = "Valid values are numbers from 0.000 to 45.000";

INSTANTIATE_TEST_SUITE_P(
    Grammar, CheckRuleTest,
    ::testing::Values(
        RuleCase{">=0,<=45", "45", true, {}},
        RuleCase{">=0,<=45", "45.01", false, {RangeError(kZeroTo45)}},
        RuleCase{">=0,<=45", "-1", false, {RangeError(kZeroTo45)}},
        // The two-limit wording whatever the operators: 0 fails, though it is named.
        RuleCase{
            ">0,<=30", "0", false, {RangeError("Valid values are numbers from 0.000 to 30.000")}},
        RuleCase{">=1", "0.5", false, {RangeError("Valid value must be greater or equal to 1")}},
        RuleCase{
            ">=1.0", "0.5", false, {RangeError("Valid value must be greater or equal to 1.0")}},
        RuleCase{"<=10", "11", false, {RangeError("Valid value must be less or equal to 10")}},
        RuleCase{"<>0", "0", false, {RangeError("Valid value must be different than 0")}},
        RuleCase{"=5", "4", false, {RangeError("Valid value must be equal to 5")}},
        RuleCase{"<5", "5", false, {RangeError("Valid value must be less than 5")}},
        RuleCase{">5", "5", false, {RangeError("Valid value must be greater than 5")}},
        RuleCase{"<>0", "3", true, {}},
        // Separators collapse: a blank before the comma, several blanks, a leading blank.
        RuleCase{" >=0 ,  <=45 ", "20", true, {}}, RuleCase{">=0.0001,<=50.0", " 1 ", true, {}},
        RuleCase{"", "anything", true, {}}, RuleCase{">=0,<=45", "", false, {kTypeMismatch}},
        RuleCase{">=0,<=45", "12abc", false, {kTypeMismatch}},
        // A blank between operator and number splits the token: the operator has no number.
        RuleCase{">= 0", "1", false, {kTypeMismatch}},
        RuleCase{
            ">=0,45", "1", false, {{"Logic Error", "Unable to process rule.", PromptIcon::Stop}}},
        RuleCase{">=0,<=45,<>3", "1", false, {kTypeMismatch}},
        RuleCase{">=x", "1", false, {kTypeMismatch}}));

struct FakeField : RuleField {
  FakeField(std::string rule, std::string text, bool enabled = true)
      : rule_(std::move(rule)), text_(std::move(text)), enabled_(enabled) {}
  std::string Rule() const override { return rule_; }
  std::string Text() const override { return text_; }
  bool IsEnabled() const override { return enabled_; }
  void SetFocus() override { focused = true; }
  std::string rule_, text_;
  bool enabled_;
  bool focused = false;
};

TEST(CheckFormTest, StopsAtTheFirstFailureFocusingItOnlyWhenEnabledOrPassesSilently) {
  struct Case {
    bool enabled;
    bool focused;
  };
  for (const Case c : {Case{true, true}, Case{false, false}}) {
    FakeField good(">=1", "2"), noRule("", ""), bad(">=0,<=45", "50", c.enabled),
        alsoBad(">=1", "0");
    std::vector<RuleField*> fields{&good, &noRule, &bad, &alsoBad};
    ScriptedPrompt prompt;
    EXPECT_FALSE(CheckForm(prompt, fields));
    ASSERT_EQ(prompt.messages.size(), 1u);
    EXPECT_EQ(prompt.messages[0], RangeError(kZeroTo45));
    EXPECT_EQ(bad.focused, c.focused);
    EXPECT_FALSE(good.focused || alsoBad.focused);
  }
  // Every rule holding, and a box without a rule whatever its text: no message.
  FakeField a(">=1", "2"), b("", "not a number");
  std::vector<RuleField*> fields{&a, &b};
  ScriptedPrompt prompt;
  EXPECT_TRUE(CheckForm(prompt, fields));
  EXPECT_TRUE(prompt.messages.empty());
}

struct RangeCase {
  const char* text;
  bool passes;
  const char* message;
};

TEST(CheckRangeTest, RefusesSignsAndCommasAndGivesThreeLinesOutOfRange) {
  const std::string numericError = "  Numeric format error  ";
  const RangeCase cases[] = {
      {" 12.5 ", true, ""},
      {"-1", false, "  Numeric format error  "},
      {"1,000", false, "  Numeric format error  "},
      {"", false, "  Numeric format error  "},
      {"250", false, "      Value   : 250.00\r\r      Limit1   : 0.000\r      Limit2   : 100.000"}};
  for (const RangeCase& c : cases) {
    SCOPED_TRACE(c.text);
    ScriptedPrompt prompt;
    std::string text = c.text;
    EXPECT_EQ(CheckRange(prompt, 0, 100, text), c.passes);
    EXPECT_EQ(RangeErrorFlag(), !c.passes);
    if (c.passes) {
      EXPECT_EQ(text, "12.5");
      EXPECT_TRUE(prompt.messages.empty());
    } else {
      ASSERT_EQ(prompt.messages.size(), 1u);
      EXPECT_EQ(prompt.messages[0].text, c.message);
      EXPECT_EQ(prompt.messages[0].title, c.message == numericError ? "Error" : kRangeErrorTitle);
    }
  }
}

}  // namespace
}  // namespace gustline::rules
