#include "host/uikit/keyboard/sentence.h"

#include "tests/support/host_test.h"

namespace {

using host::uikit::capital_is_due;

struct Sentence : host::test::HostTest {
  static bool due(const char* before, UITextAutocapitalizationType type) {
    return capital_is_due(NSString::stringWithUTF8String(before), type);
  }
};

TEST_F(Sentence, BeginsWithACapital) {
  const auto type = UITextAutocapitalizationTypeSentences;
  EXPECT_TRUE(due("", type));
  EXPECT_TRUE(due("  ", type));
  EXPECT_TRUE(due("Yes. ", type));
  EXPECT_TRUE(due("Yes! ", type));
  EXPECT_TRUE(due("one\n", type));
  EXPECT_FALSE(due("Yes.", type)) << "an address goes on after its dot";
  EXPECT_FALSE(due("Yes ", type));
  EXPECT_FALSE(due("Y", type));
}

TEST_F(Sentence, CapitalizesWordsWhenRequested) {
  EXPECT_TRUE(due("Let ", UITextAutocapitalizationTypeWords));
  EXPECT_FALSE(due("Let", UITextAutocapitalizationTypeWords));
  EXPECT_TRUE(due("LET", UITextAutocapitalizationTypeAllCharacters));
  EXPECT_FALSE(due("", UITextAutocapitalizationTypeNone));
}

}  // namespace
