#include "platform/Foundation/NSString.h"
#include "tests/support/host_test.h"

namespace {

struct StringSearch : host::test::HostTest {
  static NSRange range(const char* text, const char* wanted) {
    return NSString::stringWithUTF8String(text).rangeOfString(
        NSString::stringWithUTF8String(wanted));
  }
};

TEST_F(StringSearch, AMarkWithoutItsLetterIsNotFound) {
  for (const char* mark : {"\u0301", "\u0327x"}) {
    for (const char* text : {"e", "שׁ", "👩🎵", "plain", "", "愛"})
      EXPECT_EQ(range(text, mark).length, 0u) << text;
  }
}

TEST_F(StringSearch, EverythingElseIsFoundAsBefore) {
  EXPECT_EQ(range("one two", "two").location, 4u);
  EXPECT_EQ(range("one two", "two").length, 3u);
  EXPECT_EQ(range("Straße", "ße").location, 4u);
  EXPECT_EQ(range("one", "three").location, static_cast<NSUInteger>(NSNotFound));
}

TEST_F(StringSearch, EquivalentEncodingsAreFound) {
  const struct {
    const char* text;
    const char* wanted;
    NSRange range;
  } finds[] = {
      // A letter with a mark, composed and decomposed.
      {"e\u0301", "é", {0, 2}},
      {"é", "e\u0301", {0, 1}},
      {"cafe\u0301 noir", "é n", {3, 4}},
      {"café noir", "e\u0301 n", {3, 3}},
      {"cafe\u0301 noir", "e\u0301 n", {3, 4}},
      {"cafe\u0301 noir", "noir", {6, 4}},
      {"e e\u0301 é", "é", {2, 2}},
      // Several marks; those that do not touch each other in any order.
      {"a\u0327\u0301", "a\u0301\u0327", {0, 3}},
      {"ǖ", "ü\u0304", {0, 1}},
      {"u\u0308\u0304", "ǖ", {0, 3}},
      // Letters with a second code point, syllables made of parts, and a sign on a kana.
      {"\u212b", "Å", {0, 1}},
      {"A\u030a", "\u212b", {0, 2}},
      {"각", "\u1100\u1161\u11a8", {0, 1}},
      {"x\u1100\u1161\u11a8", "각", {1, 3}},
      {"か\u3099", "が", {0, 2}},
      {"𝔘e\u0301", "é", {2, 2}},
      {"\u0301", "\u0301", {0, 1}},
  };
  for (const auto& [text, wanted, expected] : finds) {
    const NSRange found = range(text, wanted);
    EXPECT_EQ(found.location, expected.location) << wanted << " in " << text;
    EXPECT_EQ(found.length, expected.length) << wanted << " in " << text;
  }
}

TEST_F(StringSearch, ADifferentLetterIsNotFound) {
  const std::pair<const char*, const char*> misses[] = {{"é", "e"},
                                                        {"e\u0301", "e"},
                                                        {"cafe\u0301s", "fe"},
                                                        {"cafe\u0301s", "es"},
                                                        {"e\u0301", "è"},
                                                        {"e\u0301\u0302", "é"},
                                                        {"e\u0302\u0301", "é"},
                                                        {"é", "e\u0300"},
                                                        {"각", "가"},
                                                        {"각", "\u1100"},
                                                        {"\u1100\u1161\u11a8", "가"},
                                                        {"が", "か"},
                                                        {"か\u3099", "か"},
                                                        {"x\u0301", "\u0301"},
                                                        {"", "e\u0301"},
                                                        {"e\u0301", "e\u0301x"}};
  for (const auto& [text, wanted] : misses)
    EXPECT_EQ(range(text, wanted).location, static_cast<NSUInteger>(NSNotFound))
        << wanted << " in " << text;
}

TEST_F(StringSearch, ANilTextIsAnError) {
  EXPECT_ANY_THROW(static_cast<void>("one"_ns.rangeOfString(nil)));
}

}  // namespace
