#include <unistd.h>

#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UIImageView.h"
#include "tests/support/odd_preferences.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr double kPoll = 0.1;

class Preferences : public PanelTest {
 protected:
  void load() {
    load_extension();
    applied_.emplace(SpringBoard::cls());
  }
  void launch() {
    load();
    PhoneTest::launch();
  }
  /// How often the preferences were applied, not counting the one time at every launch.
  int polled_changes() const { return applied_->count() - 1; }

  NSDictionary file() const {
    return NSDictionary::dictionaryWithContentsOfFile(
        NSString::stringWithUTF8String(preferences_file().c_str()));
  }
  std::string bytes() const { return media_tests::read_bytes(preferences_file().string()); }
  bool is_marked_alone() const {
    return file().count() == 1 &&
           objc::cast<NSNumber>(file().objectForKey("checked"_ns)).boolValue();
  }
  /// "clear" is a translucent black; a missing name gives black.
  CGFloat alpha_of_tint() const {
    CGFloat result = -1;
    global<UIColor>("newColor").getRed(nullptr, nullptr, nullptr, &result);
    return result;
  }

 private:
  std::optional<MethodSpy<"changesPrefs", void(SpringBoard)>> applied_;
};

TEST_F(Preferences, TheFirstPollMakesAFileWithOnlyItsMark) {
  use_no_preferences();
  launch();
  EXPECT_TRUE(is_marked_alone());
  EXPECT_EQ(polled_changes(), 1);
  advance(1);
  EXPECT_EQ(polled_changes(), 1);
}

TEST_F(Preferences, DefaultsApplyOnlyWithoutAFile) {
  use_no_preferences();
  load();
  // Without the poll there is no file.
  const objc::Imp before = silence("changePreferences"_sel);
  PhoneTest::launch();
  const auto cover = global<UIImageView>("cover");
  ASSERT_FALSE(std::filesystem::exists(preferences_file()));
  EXPECT_THAT(alpha_of_tint(), IsNear(0.45));
  play("Alpha");
  EXPECT_TRUE(cover.image());
  // After the first poll there is a file, which lacks these keys.
  method_setImplementation(class_getInstanceMethod(SpringBoard::cls(), "changePreferences"_sel),
                           before);
  advance(1.2);
  ASSERT_TRUE(std::filesystem::exists(preferences_file()));
  EXPECT_TRUE(global<UIImageView>("art").image());
  EXPECT_FALSE(cover.image());
}

TEST_F(Preferences, AKeyMissingFromAnExistingFileHasNoDefault) {
  write_preferences("<key>checked</key><true/>");
  launch();
  EXPECT_EQ(alpha_of_tint(), 1);
}

TEST_F(Preferences, AMarkedFileIsNeitherWrittenNorApplied) {
  write_preferences("<key>tint</key><string>clear</string><key>checked</key><true/>");
  const std::string before = bytes();
  const auto written = std::filesystem::last_write_time(preferences_file());
  launch();
  advance(1);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(std::filesystem::last_write_time(preferences_file()), written);
  EXPECT_EQ(polled_changes(), 0);
  EXPECT_THAT(alpha_of_tint(), IsNear(0.45));
}

TEST_F(Preferences, AFileWithoutTheMarkCountsAsChanged) {
  write_preferences("<key>blur</key><string>dark</string>");
  launch();
  EXPECT_EQ(polled_changes(), 1);
  EXPECT_EQ(file().count(), 3u);
  EXPECT_TRUE(objc::cast<NSNumber>(file().objectForKey("enable"_ns)).boolValue());
  EXPECT_TRUE(objc::cast<NSNumber>(file().objectForKey("checked"_ns)).boolValue());
  EXPECT_EQ(text(file().objectForKey("blur"_ns)), "dark");
  advance(1);
  EXPECT_EQ(polled_changes(), 1);
}

std::function<void()> on_change;

void change_heard(SpringBoard) {
  if (on_change) on_change();
}

TEST_F(Preferences, ThePollWritesItsMarkBeforeItApplies) {
  write_preferences("<key>checked</key><true/>");
  launch();
  objc::replace_method<&change_heard>(SpringBoard::cls(), "changesPrefs");
  std::vector<BOOL> marks;
  on_change = [&] {
    marks.push_back(objc::cast<NSNumber>(file().objectForKey("checked"_ns)).boolValue());
  };
  write_preferences("<key>blur</key><string>dark</string><key>checked</key><false/>");
  advance(1);
  on_change = nullptr;
  EXPECT_EQ(marks, std::vector<BOOL>{YES});
}

TEST_F(Preferences, TwoChangesWithinOneIntervalAreAppliedTogether) {
  launch();
  const int before = polled_changes();
  advance(kPoll / 4);
  write_preferences("<key>square</key><true/><key>checked</key><false/>");
  advance(kPoll / 4);
  write_preferences("<key>square</key><true/><key>cloud</key><true/><key>checked</key><false/>");
  advance(1);
  EXPECT_EQ(polled_changes(), before + 1);
  EXPECT_EQ(file().count(), 4u);
}

TEST_F(Preferences, ChangesOfTwoIntervalsAreAppliedTwice) {
  launch();
  const int before = polled_changes();
  for (int change = 0; change < 2; ++change) {
    write_preferences("<key>checked</key><false/>");
    advance(kPoll);
  }
  EXPECT_EQ(polled_changes(), before + 2);
}

TEST_F(Preferences, AMalformedFileIsReplaced) {
  for (const char* content : {"<plist><dict><key>tint", "", "no property list at all",
                              "<plist version=\"1.0\"><array/></plist>"}) {
    media_tests::write_bytes(preferences_file().string(), content);
    if (!application) {
      launch();
    } else {
      advance(kPoll);
    }
    EXPECT_TRUE(is_marked_alone()) << content;
    EXPECT_EQ(alpha_of_tint(), 1);
  }
  EXPECT_EQ(polled_changes(), 4);
}

TEST_F(Preferences, ValuesOfOtherTypesAreNeitherSwitchesNorTexts) {
  write_preferences(
      "<key>checked</key><array/><key>tint</key><integer>7</integer><key>apex</key><dict/>");
  launch();
  EXPECT_EQ(polled_changes(), 1);
  EXPECT_EQ(alpha_of_tint(), 1);
  EXPECT_TRUE(is("added"));
}

TEST_F(Preferences, ValuesOfAnyTypeLeaveAPanelThatWorks) {
  for (const std::string& entries : odd_preferences()) {
    write_preferences(entries);
    if (!application) {
      launch();
    } else {
      objc::send<>(application, "changesPrefs"_sel);
    }
    play("Alpha");
    advance(1.2);
    objc::send<>(application, "present"_sel);
    settle();
    EXPECT_TRUE(is("isShow")) << entries;
    EXPECT_FALSE(is("isBanner")) << entries;
    objc::send<>(application, "dismisWithNoAction"_sel);
    advance(2);
    EXPECT_FALSE(is("isShow")) << entries;
  }
}

TEST_F(Preferences, ADirectoryInPlaceOfTheFileIsTolerated) {
  use_no_preferences();
  std::filesystem::create_directory(preferences_file());
  launch();
  advance(1);
  EXPECT_TRUE(std::filesystem::is_directory(preferences_file()));
  EXPECT_EQ(alpha_of_tint(), 1);
  // It never becomes a marked file, so every poll treats it as changed.
  EXPECT_GE(polled_changes(), 10);
  // The drag stays off, and the rest of the panel works.
  EXPECT_FALSE(is("enabled"));
  objc::send<>(application, "present"_sel);
  settle();
  EXPECT_TRUE(is("isShow"));
}

/// Makes file permissions effective while it exists: the superuser can read every file.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const std::filesystem::path& device) : was_(geteuid()) {
    if (was_ != 0) return;
    constexpr uid_t kNobody = 65534;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(device))
      EXPECT_EQ(lchown(entry.path().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(lchown(device.c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(seteuid(kNobody), 0);
  }
  ~OrdinaryUser() { EXPECT_EQ(seteuid(was_), 0); }

 private:
  uid_t was_;
};

TEST_F(Preferences, AFileThatCannotBeReadIsReplaced) {
  load();
  write_preferences("<key>tint</key><string>clear</string><key>checked</key><true/>");
  std::filesystem::permissions(preferences_file(), std::filesystem::perms::none);
  {
    const OrdinaryUser user(device);
    ASSERT_NE(eaccess(preferences_file().c_str(), R_OK), 0);
    PhoneTest::launch();
    EXPECT_EQ(alpha_of_tint(), 1);
    // The new file has the old one's permissions, so no poll ever sees the mark.
    EXPECT_GE(polled_changes(), 1);
  }
  std::filesystem::permissions(preferences_file(), std::filesystem::perms::owner_read);
  EXPECT_TRUE(is_marked_alone());
}

TEST_F(Preferences, ThePollKeepsTextsOfEveryScript) {
  write_preferences(
      "<key>blur</key><string>scuro però più chiaro</string>"
      "<key>note</key><string>日本語 Ελληνικά 🎵 &lt;&amp;&gt;</string>"
      "<key>clé</key><true/>");
  launch();
  EXPECT_EQ(file().count(), 5u);
  EXPECT_EQ(text(file().objectForKey("blur"_ns)), "scuro però più chiaro");
  EXPECT_EQ(text(file().objectForKey("note"_ns)), "日本語 Ελληνικά 🎵 <&>");
  EXPECT_TRUE(objc::cast<NSNumber>(file().objectForKey("clé"_ns)).boolValue());
}

}  // namespace
}  // namespace host::test
