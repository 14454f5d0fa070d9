#include "host/media_player/library_text.h"

#include <gmock/gmock.h>

#include <optional>
#include <random>
#include <utility>

#include "host/media_player/exports.h"
#include "objc/ref.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSAttributedString.h"
#include "platform/Foundation/NSDictionary.h"
#include "tests/support/host_test.h"
#include "tests/support/media_fixtures.h"

namespace {

using host::media_player::LibraryText;
using host::media_player::MPLibraryText;

NSString ordinary(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

NSString ours(const std::string& text) {
  const auto kept = std::make_shared<std::string>(text);
  return LibraryText::make(*kept, kept).autorelease();
}

std::string utf8(NSString string) {
  return string ? string.UTF8String() : "nil";
}

std::vector<std::string> texts() {
  std::string digits;
  for (int i = 0; i < 1000; ++i)
    digits += "0123456789";
  return {"",
          "a",
          "plain title",
          "Capital Title",
          "ALL",
          "Straße",
          "ÀÉÎ",
          "İstanbul ısı",
          "ΣΑΣ",
          "Ж дом й",
          "日本語の歌",
          "かが",
          "de\xcc\x81"
          "compose\xcc\x81",
          "\xcc\x81",
          "😀 a 👨‍👩‍👧",
          "שלום עולם",
          "\xe2\x84\xab \xc3\x85 A\xcc\x8a",
          "ﬁ ﬂ",
          "각 가 사랑",
          "𝔘𝔫𝔦",
          "[.*+?^${}()|]",
          digits,
          digits + "é",
          digits + "😀"};
}

std::vector<std::string> random_texts(int count, std::uint32_t seed) {
  const std::vector<std::string> letters = {
      "a",  "A",  "b", "e", "é",        "\xcc\x81",     "Σ", "ς", "İ",       "ß", "か",
      "が", "日", "😀", " ", "\xc3\x85", "\xe2\x84\xab", "й", "и", "\xcc\x86"};
  std::mt19937 random{seed};
  std::vector<std::string> made;
  for (int i = 0; i < count; ++i) {
    std::string text;
    for (std::uint32_t length = random() % 6; length > 0; --length)
      text += letters[random() % letters.size()];
    made.push_back(text);
  }
  return made;
}

// Foundation itself raises an exception for some combining marks without a letter; the result is
// then nothing.
std::optional<std::pair<NSUInteger, NSUInteger>> range_in(NSString text, NSString wanted) {
  try {
    const NSRange range = text.rangeOfString(wanted);
    return std::pair{range.location, range.length};
  } catch (...) {
    return std::nullopt;
  }
}

class LibraryTexts : public host::test::HostTest {
 protected:
  LibraryTexts() { host::media_player::export_media_player(); }
};

TEST_F(LibraryTexts, AreFoundationStrings) {
  for (const std::string& text : texts()) {
    const NSString string = ours(text);
    ASSERT_TRUE(string.isKindOfClass(MPLibraryText::cls())) << text;
    EXPECT_TRUE(string.isKindOfClass(NSString::cls()));
    EXPECT_EQ(utf8(string), text);
    EXPECT_EQ(string.copy(), string);
  }
}

TEST_F(LibraryTexts, HaveTheCharactersOfAnOrdinaryString) {
  for (const std::string& text : texts()) {
    const NSString one = ours(text);
    const NSString other = ordinary(text);
    ASSERT_EQ(one.length(), other.length()) << text;
    for (NSUInteger i = 0; i < one.length(); ++i)
      ASSERT_EQ(one.characterAtIndex(i), other.characterAtIndex(i)) << text << " at " << i;
    if (one.length() > 3) {
      // At the end of the first three characters, since half a character is not valid text.
      const NSRange third = one.rangeOfComposedCharacterSequenceAtIndex(2);
      const NSUInteger from = third.location + third.length;
      EXPECT_EQ(utf8(one.substringFromIndex(from)), utf8(other.substringFromIndex(from))) << text;
    }
  }
}

TEST_F(LibraryTexts, AreEqualToOrdinaryStringsBothWaysWithTheSameHash) {
  auto all = texts();
  for (auto& made : random_texts(60, 1))
    all.push_back(std::move(made));
  const auto hash = [](NSString string) { return objc::send<NSUInteger>(string, "hash"_sel); };
  for (const std::string& text : all) {
    const NSString one = ours(text);
    EXPECT_EQ(hash(one), hash(ordinary(text))) << text;
    for (const std::string& second : all) {
      const NSString other = ordinary(second);
      const BOOL expected = ordinary(text).isEqualToString(other);
      EXPECT_EQ(one.isEqualToString(other), expected) << text << " and " << second;
      EXPECT_EQ(one.isEqual(other), ordinary(text).isEqual(other)) << text << " and " << second;
      EXPECT_EQ(other.isEqualToString(one), other.isEqualToString(ordinary(text)))
          << second << " and " << text;
      EXPECT_EQ(other.isEqual(one), other.isEqual(ordinary(text))) << second << " and " << text;
      EXPECT_EQ(one.isEqualToString(ours(second)), expected) << text << " and " << second;
      EXPECT_EQ(one.compare(other), ordinary(text).compare(other)) << text << " and " << second;
      EXPECT_EQ(one.caseInsensitiveCompare(other), ordinary(text).caseInsensitiveCompare(other));
    }
  }
  EXPECT_FALSE(ours("a").isEqual(nil));
  EXPECT_FALSE(ours("a").isEqual(NSArray::array()));
}

TEST_F(LibraryTexts, AreLowercasedLikeFoundationAndOnlyOnce) {
  auto all = texts();
  for (auto& made : random_texts(200, 2))
    all.push_back(std::move(made));
  for (const std::string& text : all) {
    const NSString string = ours(text);
    const NSString lower = string.lowercaseString();
    EXPECT_EQ(utf8(lower), utf8(ordinary(text).lowercaseString()));
    EXPECT_EQ(string.lowercaseString(), lower);
    EXPECT_EQ(lower.lowercaseString(), lower);
    EXPECT_EQ(utf8(string.uppercaseString()), utf8(ordinary(text).uppercaseString()));
  }
  const NSString already = ours("already lower");
  EXPECT_EQ(already.lowercaseString(), already);
}

TEST_F(LibraryTexts, ALowercaseTextOutlivesItsTextUntilTheTurnEnds) {
  const auto kept = std::make_shared<std::string>("Title");
  const NSString string = LibraryText::make(*kept, kept);
  const NSString lower = string.lowercaseString();
  string.release();
  EXPECT_EQ(utf8(lower), "title");
}

TEST_F(LibraryTexts, FindWhatAnOrdinaryStringFinds) {
  auto all = texts();
  for (auto& made : random_texts(120, 3))
    all.push_back(std::move(made));
  auto wanted = random_texts(120, 4);
  for (const char* more :
       {"a", "ti", "title", "Σ", "ß", "本", "0", "9012", "é", "e\xcc\x81", "\xcc\x81", "*", "",
        "\xe2\x84\xaa", "か\xe3\x82\x99", "A\xcc\x8a", "E\xcc\x81", "각"})
    wanted.push_back(more);
  for (const std::string& needle : wanted) {
    for (const std::string& text : all) {
      const auto expected = range_in(ordinary(text), ordinary(needle));
      EXPECT_EQ(range_in(ours(text), ordinary(needle)), expected) << needle << " in " << text;
      EXPECT_EQ(range_in(ours(text), ours(needle)), expected) << needle << " in " << text;
    }
  }
}

TEST_F(LibraryTexts, AreSearchedForHalfALetter) {
  const NSString half = ordinary("🎵").substringToIndex(1);
  for (const char* text : {"plain", "\xef\xbf\xbd", "日本語の歌"})
    EXPECT_EQ(ours(text).rangeOfString(half).location, static_cast<NSUInteger>(NSNotFound)) << text;
}

TEST_F(LibraryTexts, AreSearchedForAMutableStringThatChangesMeanwhile) {
  const NSString title = ours("one two");
  const auto wanted = objc::cast<NSString>(
      objc::send<objc::Object>(objc::Object(objc_getClass("NSMutableString")),
                               "stringWithUTF8String:"_sel, std::string{"one"}.c_str()));
  EXPECT_EQ(title.rangeOfString(wanted).location, 0u);
  objc::send<>(wanted, "setString:"_sel, "two"_ns);
  EXPECT_EQ(title.rangeOfString(wanted).location, 4u);
}

TEST_F(LibraryTexts, AreKeysAndMembersLikeOrdinaryStrings) {
  const NSMutableDictionary by_name = NSMutableDictionary::dictionary();
  for (const std::string& text : texts())
    by_name.setObject(ours(text), ours(text));
  for (const std::string& text : texts())
    EXPECT_EQ(utf8(objc::cast<NSString>(by_name.objectForKey(ordinary(text)))), text);
  const NSMutableDictionary by_other = NSMutableDictionary::dictionary();
  for (const std::string& text : texts())
    by_other.setObject(ordinary(text), ordinary(text));
  for (const std::string& text : texts())
    EXPECT_TRUE(by_other.objectForKey(ours(text))) << text;
  EXPECT_EQ(NSArray::arrayWithObjects(ours("a"), ours("é")).indexOfObject(ordinary("é")), 1u);
}

TEST_F(LibraryTexts, AreJoinedSplitReplacedAndWrapped) {
  for (const std::string& text : texts()) {
    const NSString one = ours(text);
    const NSString other = ordinary(text);
    EXPECT_EQ(utf8(one.stringByAppendingString(one)), text + text);
    EXPECT_EQ(utf8(other.stringByAppendingString(one)), text + text);
    EXPECT_EQ(one.componentsSeparatedByString(" "_ns).count(),
              other.componentsSeparatedByString(" "_ns).count());
    const auto wrapped = NSAttributedString::alloc().initWithString(one).autorelease();
    EXPECT_EQ(utf8(wrapped.string()), text);
    const NSString changed = objc::send<NSString>(one, "mutableCopy"_sel).autorelease();
    objc::send<>(changed, "appendString:"_sel, "!"_ns);
    EXPECT_EQ(utf8(changed), text + "!");
    EXPECT_EQ(utf8(one), text);
  }
  EXPECT_EQ(ours("42").intValue(), 42);
  EXPECT_TRUE(ours("title").hasPrefix("ti"_ns));
  EXPECT_TRUE(ours("title").hasSuffix(ours("le")));
}

TEST_F(LibraryTexts, AreWrittenToAPropertyListAndReadBack) {
  const media_tests::TemporaryFolder folder;
  const NSString path = ordinary(folder / "texts.plist");
  const NSMutableDictionary list = NSMutableDictionary::dictionary();
  for (const std::string& text : texts())
    list.setObject(ours(text), ours("key " + text));
  ASSERT_TRUE(list.writeToFile(path, YES));
  const auto read = NSDictionary::dictionaryWithContentsOfFile(path);
  EXPECT_EQ(read.count(), texts().size());
  for (const std::string& text : texts())
    EXPECT_EQ(utf8(objc::cast<NSString>(read.objectForKey(ordinary("key " + text)))), text);
}

TEST_F(LibraryTexts, AccessBeyondTheirEndRaises) {
  EXPECT_ANY_THROW(ours("abc").characterAtIndex(3));
  EXPECT_ANY_THROW(ours("éa").characterAtIndex(2));
  EXPECT_ANY_THROW(ours("abc").substringFromIndex(4));
}

TEST_F(LibraryTexts, InvalidBytesBecomeWhatFoundationMakesOfThem) {
  for (const std::string text : {"\xff", "a\xc3", "\xed\xa0\x80", "\xc0\x80", "\xf4\x90\x80\x80"}) {
    const auto kept = std::make_shared<std::string>(text);
    EXPECT_EQ(utf8(LibraryText::make(*kept, kept)), utf8(ordinary(text)));
  }
}

}  // namespace
