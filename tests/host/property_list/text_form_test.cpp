#include <gmock/gmock.h>

#include "host/property_list/reader.h"
#include "tests/host/property_list/described.h"
#include "tests/support/host_test.h"

namespace {

using host::property_list::read;
using host::property_list::read_texts;
using host::test::described;
using testing::HasSubstr;

using TextForm = host::test::HostTest;

TEST_F(TextForm, HoldsTextsListsAndBytes) {
  EXPECT_EQ(described(read("{a = b; 'c d' = (1, \"x;y\", {}, (),);}")),
            "{a = b; \"c d\" = (1, \"x;y\", {}, ()); }");
  EXPECT_EQ(described(read("<01 0203>")), "<010203>");
  EXPECT_EQ(described(read(" // nothing\n /* else */ word")), "word");
  EXPECT_EQ(described(read("http://example.org/a-b_c~d?e@f")), "http://example.org/a-b_c~d?e@f");
}

TEST_F(TextForm, DecodesEscapes) {
  EXPECT_EQ(described(read(R"("a\tb\"\\\344\U00fc\u00FC\q")")), "a\tb\"\\äüüq");
  EXPECT_EQ(described(read(R"("\Ud83c\Udfb5")")), "🎵");
  for (const char* half : {R"("\Ud83c")", R"("\Udfb5")", R"("\Ud83c\U0041")", R"("\U")", R"("\0")"})
    EXPECT_FALSE(read(half).list) << half;
}

TEST_F(TextForm, SpellsNumbersSwitchesAndDates) {
  EXPECT_EQ(described(read("(<*I-5>, <*R1.5>, <*BY>, <*BN>)")), "(\"-5\", \"1.5\", 1, 0)");
  EXPECT_THAT(described(read("<*D2001-01-01 01:00:09 +0100>")), HasSubstr("2001-01-01 00:00:09"));
}

TEST_F(TextForm, IsATableOfTextsWithoutBraces) {
  EXPECT_EQ(described(read("a = b; c;")), "{a = b; c = c; }");
  EXPECT_EQ(described(read_texts("/* none */\n\"a\" = \"b\";")), "{a = b; }");
  EXPECT_EQ(described(read("  // nothing")), "{}");
}

TEST_F(TextForm, SaysWhereItIsDamaged) {
  EXPECT_EQ(read("{\n a = b\n c = d; }").problem, "it is damaged in line 3: a ';' is missing");
  EXPECT_EQ(read("(a b)").problem, "it is damaged in line 1: a ',' or ')' is missing");
  EXPECT_EQ(read("{a = \"b; }").problem, "it is damaged in line 1: a quote does not end");
  EXPECT_EQ(read("(a,\n").problem, "it is damaged in line 2: it ends too early");
  EXPECT_EQ(read("(a) b").problem, "it is damaged in line 1: something follows the list");
  EXPECT_EQ(read("a /* b").problem, "it is damaged in line 1: a comment does not end");
  EXPECT_EQ(read("<*I5").problem, "it is damaged in line 1: a '>' is missing");
  EXPECT_EQ(read("").problem, "it is empty");
  EXPECT_EQ(read("\xFF(a)").problem, "it is neither UTF-8 nor UTF-16");
  for (const char* damaged :
       {"<0>", "<0x>", "<*BX>", "<*I>", "<*R>", "<*D1>", "{(a) = b;}", "(,)", "ü"}) {
    EXPECT_FALSE(read(damaged).list) << damaged;
    EXPECT_THAT(read(damaged).problem, testing::Not(testing::IsEmpty())) << damaged;
  }
}

TEST_F(TextForm, MayBeUtf16) {
  using namespace std::string_literals;
  EXPECT_EQ(described(read("\xFE\xFF\0(\0a\0)"s)), "(a)");
  EXPECT_EQ(described(read("\xFF\xFE(\0a\0)\0"s)), "(a)");
  EXPECT_FALSE(read("\xFE\xFF\0(\0"s).list);
}

TEST_F(TextForm, IsNestedOnlySoDeep) {
  EXPECT_TRUE(read(std::string(100, '(') + std::string(100, ')')).list);
  const auto deeper = read(std::string(101, '(') + std::string(101, ')'));
  EXPECT_EQ(deeper.problem, "it is nested deeper than 100 levels");
  EXPECT_TRUE(deeper.exceeds_bounds);
}

}  // namespace
