#include "host/social/composers/character_count.h"

#include "tests/support/host_test.h"

namespace {

class CharacterCount : public host::test::HostTest {
 protected:
  static std::size_t count(const std::string& text) {
    return host::social::character_count(NSString::stringWithUTF8String(text.c_str()));
  }
};

TEST_F(CharacterCount, OfAnEmptyTextIsZero) {
  EXPECT_EQ(count(""), 0u);
  EXPECT_EQ(host::social::character_count(nil), 0u);
}

TEST_F(CharacterCount, CountsAnEmojiOfSeveralPartsAsOne) {
  EXPECT_EQ(count("\U0001F600"), 1u);
  EXPECT_EQ(count("a\U0001F468\u200D\U0001F469\u200D\U0001F467z"), 3u);
}

TEST_F(CharacterCount, CountsALetterAndItsMarksAsOne) {
  EXPECT_EQ(count("e\u0301\u0323"), 1u);
  EXPECT_EQ(count("e\u0301e\u0301"), count("éé"));
}

TEST_F(CharacterCount, IsTheSameInEveryDirection) {
  EXPECT_EQ(count("שלום abc"), 8u);
}

TEST_F(CharacterCount, CountsTenThousand) {
  EXPECT_EQ(count(std::string(10000, 'x')), 10000u);
}

}  // namespace
