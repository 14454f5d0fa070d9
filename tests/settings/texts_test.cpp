#include "settings/texts.h"

#include <set>

#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"
#include "platform/Foundation/NSUserDefaults.h"
#include "platform/Foundation/NSValue.h"
#include "tests/settings/replaced_method.h"
#include "tests/settings/settings_test.h"

namespace sonavue::test {
namespace {

/// How many more reads of the English table are allowed.
int& readings_left() {
  static int left = 0;
  return left;
}
BOOL may_be_read(NSFileManager, NSString path) {
  return !path.hasSuffix("/en.plist"_ns) || readings_left()-- > 0;
}

class Texts : public SettingsTest {
 protected:
  static void speak(const char* language) {
    NSUserDefaults::standardUserDefaults().setObject(
        NSArray::arrayWithObject(NSString::stringWithUTF8String(language)), "AppleLanguages"_ns);
  }
  ~Texts() override {
    NSUserDefaults::standardUserDefaults().removeObjectForKey("AppleLanguages"_ns);
  }
  static std::string text(const char* identifier) {
    const NSString found = Translator(NSString::stringWithUTF8String(identifier));
    return found ? found.UTF8String() : "nil";
  }
  static std::string identifier(const char* text) {
    return getNotTranslated(NSString::stringWithUTF8String(text)).UTF8String();
  }
  void write_english(std::string_view entries) const {
    write_dictionary(languages() / "en.plist", entries);
  }
};

TEST_F(Texts, OtherLanguagesFallBackToEnglish) {
  speak("fr");
  write_dictionary(languages() / "fr.plist", text_entry("red", "Rouge"));
  write_english(text_entry("red", "Red"));
  EXPECT_STREQ(lang().UTF8String(), "en");
  EXPECT_EQ(text("red"), "Red");
}

TEST_F(Texts, EnglishIsEnglishAndTheDefault) {
  speak("en");
  EXPECT_STREQ(lang().UTF8String(), "en");
  NSUserDefaults::standardUserDefaults().setObject(NSArray::array(), "AppleLanguages"_ns);
  EXPECT_STREQ(lang().UTF8String(), "en");
}

TEST_F(Texts, AMissingTextIsNull) {
  write_english(text_entry("red", "Red"));
  EXPECT_EQ(text("blue"), "(null)");
}

TEST_F(Texts, AnEmptyTextCountsAsMissing) {
  write_english(text_entry("red", ""));
  EXPECT_EQ(text("red"), "(null)");
}

TEST_F(Texts, WithoutATableEverythingIsNull) {
  fs::remove(languages() / "en.plist");
  EXPECT_EQ(text("red"), "(null)");
  EXPECT_EQ(identifier("Red"), "(null)");
}

/// A table that becomes unreadable after a number of reads.
class LockedTexts : public Texts {
 protected:
  LockedTexts() { write_english(text_entry("red", "Red") + text_entry("empty", "")); }

 private:
  ReplacedMethod<&may_be_read> locked_{NSFileManager::cls(), "isReadableFileAtPath:"};
};

TEST_F(LockedTexts, AnUnreadableTableGivesNull) {
  readings_left() = 0;
  EXPECT_EQ(text("red"), "(null)");
  EXPECT_EQ(identifier("Red"), "(null)");
}

TEST_F(LockedTexts, OneReadIsEnoughForAnExistingText) {
  readings_left() = 1;
  EXPECT_EQ(text("red"), "Red");
  readings_left() = 1;
  EXPECT_EQ(identifier("Red"), "red");
}

TEST_F(LockedTexts, IfOnlyTheSecondReadFailsTheFirstResultIsReturned) {
  readings_left() = 1;
  EXPECT_EQ(text("blue"), "nil");
  readings_left() = 1;
  EXPECT_EQ(text("empty"), "");
  readings_left() = 2;
  EXPECT_EQ(text("empty"), "(null)");
}

TEST_F(Texts, AMalformedTableCountsAsEmpty) {
  for (const char* bytes : {"", "no list", "<?xml version=\"1.0\"?><plist><dict><key>red"}) {
    write(languages() / "en.plist", bytes);
    EXPECT_EQ(text("red"), "(null)") << bytes;
    EXPECT_EQ(identifier("Red"), "(null)") << bytes;
  }
}

TEST_F(Texts, AFolderInPlaceOfATableCountsAsEmpty) {
  fs::remove(languages() / "en.plist");
  fs::create_directory(languages() / "en.plist");
  EXPECT_EQ(text("red"), "(null)");
  EXPECT_EQ(identifier("Red"), "(null)");
}

// Everything that a property list can hold except strings.
constexpr const char* kNoTexts[] = {"<integer>7</integer>",
                                    "<real>0.5</real>",
                                    "<true/>",
                                    "<data>AAEC</data>",
                                    "<date>2015-01-01T00:00:00Z</date>",
                                    "<array><string>Red</string></array>",
                                    "<dict><key>red</key><string>Red</string></dict>"};

TEST_F(Texts, AValueThatIsNotAStringCountsAsMissing) {
  for (const std::string value : kNoTexts) {
    write_english("<key>red</key>" + value + text_entry("tint", "Tint color") + "<key>zero</key>" +
                  value);
    EXPECT_EQ(text("red"), "(null)") << value;
    EXPECT_EQ(text("tint"), "Tint color") << value;
    EXPECT_EQ(identifier("Tint color"), "tint") << value;
    EXPECT_EQ(identifier("Red"), "(null)") << value;
  }
}

TEST_F(Texts, ATableThatIsNotADictionaryCountsAsEmpty) {
  for (const std::string value : kNoTexts) {
    if (value.starts_with("<dict>")) continue;
    write(languages() / "en.plist", "<plist version=\"1.0\">" + value + "</plist>");
    EXPECT_EQ(text("red"), "(null)") << value;
    EXPECT_EQ(identifier("Red"), "(null)") << value;
  }
}

TEST_F(Texts, InvalidLanguagesFallBackToEnglish) {
  write_english(text_entry("red", "Red"));
  const NSArray wrong = NSArray::arrayWithObjects(
      "en"_ns, NSNumber::numberWithBool(YES), NSDictionary::dictionary(), NSData::data(),
      NSArray::arrayWithObject(NSNumber::numberWithBool(YES)),
      NSArray::arrayWithObject(NSArray::arrayWithObject("en"_ns)));
  for (const auto each : wrong.of<NSObject>()) {
    NSUserDefaults::standardUserDefaults().setObject(each, "AppleLanguages"_ns);
    EXPECT_STREQ(lang().UTF8String(), "en") << each.description().UTF8String();
    EXPECT_EQ(text("red"), "Red") << each.description().UTF8String();
  }
}

TEST_F(Texts, TheIdentifierOfATextIsFound) {
  write_english(text_entry("red", "Red") + text_entry("tint", "Tint color"));
  EXPECT_EQ(identifier("Tint color"), "tint");
  EXPECT_EQ(identifier("tint color"), "(null)");
  EXPECT_EQ(identifier(""), "(null)");
}

TEST_F(Texts, OneOfTwoIdentifiersWithTheSameTextIsFound) {
  write_english(text_entry("gray", "Grey") + text_entry("grey", "Grey"));
  EXPECT_THAT(identifier("Grey"), testing::AnyOf("gray", "grey"));
}

TEST_F(Texts, TheTableIsReadAgainEveryTime) {
  write_english(text_entry("red", "Red"));
  EXPECT_EQ(text("red"), "Red");
  write_english(text_entry("red", "Crimson"));
  EXPECT_EQ(text("red"), "Crimson");
  EXPECT_EQ(identifier("Crimson"), "red");
}

TEST_F(Texts, TheEnglishTableIsCompleteAndUnambiguous) {
  const char* const identifiers[] = {"activator",
                                     "adaptive_light",
                                     "apex",
                                     "black",
                                     "blue",
                                     "blur",
                                     "brown",
                                     "cancel",
                                     "clear",
                                     "close",
                                     "cloud",
                                     "colored",
                                     "configuration",
                                     "contacts",
                                     "cover",
                                     "cyan",
                                     "dark",
                                     "dark_low",
                                     "desc_apex",
                                     "desc_blur",
                                     "desc_cloud",
                                     "desc_cover",
                                     "desc_font_tint",
                                     "desc_gest",
                                     "desc_legibility",
                                     "desc_play",
                                     "desc_setup",
                                     "desc_square",
                                     "desc_style",
                                     "desc_tint",
                                     "enable",
                                     "flat_semi_light",
                                     "font_tint",
                                     "gray",
                                     "green",
                                     "legibility",
                                     "light",
                                     "light_keyboard",
                                     "light_low",
                                     "magenta",
                                     "orange",
                                     "passcode",
                                     "play",
                                     "purple",
                                     "red",
                                     "semi_light",
                                     "setup",
                                     "square",
                                     "style",
                                     "time",
                                     "tint",
                                     "tweet",
                                     "ultra_colored",
                                     "ultra_dark",
                                     "ultra_light",
                                     "volume",
                                     "white"};
  std::set<std::string> texts;
  for (const char* each : identifiers) {
    EXPECT_NE(text(each), "(null)") << each;
    EXPECT_TRUE(texts.insert(text(each)).second) << each << " has the text of another identifier";
    EXPECT_EQ(identifier(text(each).c_str()), each);
  }
}

}  // namespace
}  // namespace sonavue::test
