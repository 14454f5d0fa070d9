#include "host/media/text.h"

#include <gtest/gtest.h>

using namespace host::media;

TEST(MediaText, LongTextIsCutAtACharacterBoundary) {
  std::string euros;
  while (euros.size() < (1u << 20))
    euros += "\u20ac";
  const std::string cut = repaired_text(euros);
  EXPECT_EQ(cut.size(), longest_text_bytes / 3 * 3);
  EXPECT_TRUE(cut.ends_with("\u20ac"));
}

TEST(MediaText, BrokenBytesBecomeReplacementCharacters) {
  EXPECT_EQ(repaired_text("a\xff"
                          "b"),
            "a\ufffdb");
}

TEST(MediaText, ControlCharactersAndOuterSpacesAreNotShown) {
  EXPECT_EQ(repaired_text("  one\ntwo\x7f "), "one two");
  EXPECT_EQ(repaired_text("   "), "");
}

TEST(MediaText, FoldingIgnoresCaseInEveryScript) {
  EXPECT_EQ(folded_text("ÄRGER Straße"), folded_text("ärger STRASSE"));
  EXPECT_NE(folded_text("a"), folded_text("ä"));
}

TEST(MediaText, AbsurdNumbersAreZero) {
  EXPECT_EQ(number_in("3/12"), 3);
  EXPECT_EQ(number_in(" 07 "), 7);
  EXPECT_EQ(number_in("-4"), 0);
  EXPECT_EQ(number_in("99999999999999999999"), 0);
  EXPECT_EQ(number_in("10000"), 0);
  EXPECT_EQ(number_in("seven"), 0);
  EXPECT_EQ(number_in(""), 0);
}
