#include "settings/preferences.h"

#include "platform/Foundation/NSValue.h"
#include "tests/settings/settings_test.h"
#include "tweak/preferences/preferences_file.h"

namespace sonavue::test {
namespace {

using SettingsPreferences = SettingsTest;

NSNumber yes() {
  return NSNumber::numberWithBool(YES);
}

TEST_F(SettingsPreferences, AChangeKeepsTheRestAndClearsTheMark) {
  write_dictionary(preferences(), text_entry("blur", "dark") + switch_entry("checked", true));
  store(yes(), preference::enable());
  EXPECT_EQ(stored(), "blur = dark, checked = 0, enable = 1");
}

TEST_F(SettingsPreferences, TheFirstChangeCreatesTheFile) {
  store("red"_ns, preference::tint());
  EXPECT_EQ(stored(), "checked = 0, tint = red");
}

TEST_F(SettingsPreferences, AnUnreadableFileIsReplaced) {
  write(preferences(), "<plist><dict><key>bl");
  store("red"_ns, preference::tint());
  EXPECT_EQ(stored(), "checked = 0, tint = red");
}

TEST_F(SettingsPreferences, AnUnannouncedChangeLeavesTheMark) {
  write_dictionary(preferences(), switch_entry("checked", true));
  store_unannounced(yes(), preference::apex());
  EXPECT_EQ(stored(), "apex = 1, checked = 1");
}

TEST_F(SettingsPreferences, AnUnannouncedFirstChangeSetsNoMark) {
  store_unannounced(yes(), preference::firstBoot());
  EXPECT_EQ(stored(), "firstBoot = 1");
}

TEST_F(SettingsPreferences, ValuesAreReadAgainEveryTime) {
  EXPECT_FALSE(stored_value(preference::tint()));
  write_dictionary(preferences(), text_entry("tint", "red"));
  EXPECT_TRUE(objc::cast<NSString>(stored_value(preference::tint())).isEqualToString("red"_ns));
  EXPECT_FALSE(stored_value(preference::blur()));
}

/// Files written by another program's library, in both formats.
class ForeignPreferences : public SettingsTest, public testing::WithParamInterface<const char*> {};

TEST_P(ForeignPreferences, AreReadAndKept) {
  fs::copy_file(fs::path(SETTINGS_TEST_DATA) / GetParam(), preferences());
  EXPECT_TRUE(is_true(stored_value(preference::enable())));
  EXPECT_FALSE(is_true(stored_value(preference::cover())));
  EXPECT_STREQ(objc::cast<NSString>(stored_value(PreferenceKey("note"_ns))).UTF8String(),
               "Grüße 🎵");
  store("dark"_ns, preference::blur());
  EXPECT_EQ(stored(),
            "blur = dark, checked = 0, cover = 0, enable = 1, list = (a, 1), "
            "note = Grüße 🎵, play = time, size = 12.5");
}
INSTANTIATE_TEST_SUITE_P(Forms, ForeignPreferences,
                         testing::Values("preferences-xml.plist", "preferences-binary.plist"));

TEST_F(SettingsPreferences, OnlyStringsAndNumbersAreValues) {
  for (const char* value : {"<data>AAEC</data>", "<date>2015-01-01T00:00:00Z</date>", "<array/>",
                            "<dict><key>red</key><true/></dict>"}) {
    write_dictionary(preferences(), "<key>enable</key>" + std::string(value));
    EXPECT_FALSE(stored_value(preference::enable())) << value;
  }
  for (const char* value : {"<integer>7</integer>", "<real>0.5</real>", "<true/>",
                            "<string>red</string>", "<string/>"}) {
    write_dictionary(preferences(), "<key>enable</key>" + std::string(value));
    EXPECT_TRUE(stored_value(preference::enable())) << value;
  }
}

TEST_F(SettingsPreferences, OnlyNonZeroNumbersAreTrue) {
  EXPECT_TRUE(is_true(yes()));
  EXPECT_FALSE(is_true(NSNumber::numberWithBool(NO)));
  EXPECT_FALSE(is_true(objc::Object()));
  EXPECT_FALSE(is_true(NSArray::array()));
}

}  // namespace
}  // namespace sonavue::test
