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

TEST_F(StringSearch, EverythingElseIsFoundAsEver) {
  EXPECT_EQ(range("one two", "two").location, 4u);
  EXPECT_EQ(range("one two", "two").length, 3u);
  EXPECT_EQ(range("Straße", "ße").location, 4u);
  EXPECT_EQ(range("one", "three").location, static_cast<NSUInteger>(NSNotFound));
}

TEST_F(StringSearch, NoTextIsAMistake) {
  EXPECT_ANY_THROW(static_cast<void>("one"_ns.rangeOfString(nil)));
}

}  // namespace
