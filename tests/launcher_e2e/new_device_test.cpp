#include <sys/stat.h>

#include <fstream>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;

/// The default phone, started without naming a root.
class NewDevice : public PhoneTest {
 protected:
  NewDevice() { setenv("XDG_DATA_HOME", data().c_str(), 1); }
  ~NewDevice() override { unsetenv("XDG_DATA_HOME"); }

  fs::path data() const { return folder() / "data"; }
  fs::path device() const { return data() / "sonavue/device"; }
  fs::path kept(const std::string& name) const {
    return device() / "var/mobile/Library/Preferences" / name;
  }
  fs::path settings() const { return kept("org.plumvane.SonavueSettings.plist"); }
  fs::path gestures() const { return kept("gesture-assignments.plist"); }

  Arguments started(const Arguments& more = {}) const {
    Arguments made = {"--headless", "--console", "--music", music()};
    made.insert(made.end(), more.begin(), more.end());
    return made;
  }
  static void play(RunningPhone& phone, const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
      ASSERT_EQ(phone.ask(line), "ok") << line << "\n" << phone.errors();
  }
  /// Holds the status bar for a moment, as a mouse can.
  static void hold_status_bar(RunningPhone& phone) {
    play(phone, {"touch began 187 8", "advance 0.7", "touch ended 187 8", "advance 1"});
  }
  /// Sends a message to the settings' dictionary and returns the answer.
  static std::string of_settings(RunningPhone& phone, const std::string& message) {
    return phone.ask(
        "print [[NSDictionary dictionaryWithContentsOfFile:@\"/var/mobile/Library/Preferences/"
        "org.plumvane.SonavueSettings.plist\"] " +
        message + "]");
  }
  static void drag_icon(RunningPhone& phone) {
    play(phone, {"advance 1", "touch began on musicIcon", "advance 0.1", "touch moved 187 400",
                 "advance 0.1", "touch ended 187 400", "advance 1.5"});
  }
  static constexpr const char* kPresented =
      "print [[[[UIApplication sharedApplication] keyWindow] rootViewController] "
      "presentedViewController]";
  /// Opens the extension's page; returns what it presents then, or nil.
  static std::string presented_by_its_page(RunningPhone& phone) {
    play(phone, {"advance 1", "system open com.apple.Preferences", "advance 2", "tap 100 293",
                 "advance 2", "process Preferences"});
    return phone.ask(kPresented);
  }
};

TEST_F(NewDevice, OpensThePanelOnTheFirstDrag) {
  RunningPhone phone(started());
  drag_icon(phone);
  EXPECT_EQ(phone.ask("print isShow"), "YES");
  EXPECT_EQ(phone.ask("expect [[title textColor] isEqual:[UIColor whiteColor]] == YES"), "ok");
  EXPECT_EQ(phone.ask("expect [[play tintColor] isEqual:[UIColor whiteColor]] == YES"), "ok");
  // A tap where the banner's gesture begins still closes the panel.
  play(phone, {"tap 187 8", "advance 1.5", "expect isShow == NO"});
}

TEST_F(NewDevice, HasAValueForEverySetting) {
  RunningPhone phone(started());
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  const std::pair<const char*, const char*> kept_values[] = {
      {"enable", "YES"},     {"apex", "NO"},     {"cover", "YES"},           {"square", "NO"},
      {"legibility", "NO"},  {"cloud", "NO"},    {"blur", "\"dark\""},       {"play", "\"time\""},
      {"tint", "\"white\""}, {"checked", "YES"}, {"font_tint", "\"white\""}, {"firstBoot", "YES"},
  };
  for (const auto& [key, value] : kept_values)
    EXPECT_EQ(of_settings(phone, std::string("objectForKey:@\"") + key + "\""), value) << key;
  EXPECT_EQ(of_settings(phone, "count"), std::to_string(std::size(kept_values)));
}

TEST_F(NewDevice, HasAGestureForTheBannerInEveryMode) {
  RunningPhone phone(started());
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  const std::vector<std::string> ways[] = {
      {},
      {"system open com.apple.Music", "advance 1"},
      {"button lock", "advance 1", "button home", "advance 0.5"},
  };
  for (const auto& way : ways) {
    play(phone, way);
    hold_status_bar(phone);
    EXPECT_EQ(phone.ask("print isBanner"), "YES")
        << phone.ask("print [[LAActivator sharedInstance] currentEventMode]");
    play(phone, {"button home", "advance 1", "expect isBanner == NO"});
  }
}

TEST_F(NewDevice, HasGoneThroughTheWizard) {
  RunningPhone phone(started());
  EXPECT_EQ(presented_by_its_page(phone), "nil");
}

TEST_F(NewDevice, DoesNotRestoreWhatTheUserHasRemoved) {
  { RunningPhone(started()).ask("quit"); }
  ASSERT_TRUE(fs::remove(settings()));
  ASSERT_TRUE(fs::remove(gestures()));
  RunningPhone phone(started());
  drag_icon(phone);
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_FALSE(fs::exists(gestures()));
}

TEST_F(NewDevice, IsCompletedByTheNextStartAfterAFullDisk) {
  {
    RunningPhone phone(started(), Hardship::kFullDisk);
    EXPECT_EQ(phone.wait_for_end(), 2);
    ASSERT_THAT(phone.error_lines(), testing::SizeIs(1)) << phone.errors();
    EXPECT_THAT(phone.error_lines()[0], HasSubstr(device().string()));
  }
  RunningPhone phone(started());
  drag_icon(phone);
  EXPECT_EQ(phone.ask("print isShow"), "YES");
  EXPECT_TRUE(fs::exists(gestures()));
}

TEST_F(NewDevice, IsRefusedInAnUnwritableFolder) {
  fs::create_directories(device());
  chmod(device().c_str(), 0500);
  RunningPhone phone(started(), Hardship::kOrdinaryUser);
  EXPECT_EQ(phone.wait_for_end(), 2);
  ASSERT_THAT(phone.error_lines(), testing::SizeIs(1)) << phone.errors();
  EXPECT_THAT(phone.error_lines()[0], HasSubstr(device().string()));
  EXPECT_THAT(phone.error_lines()[0], HasSubstr("Permission denied"));
  chmod(device().c_str(), 0700);
}

class UntouchedDevice : public NewDevice {
 protected:
  static void expect_untouched(RunningPhone& phone) {
    drag_icon(phone);
    EXPECT_EQ(phone.ask("print isShow"), "NO");
    EXPECT_EQ(
        phone.ask("print [[LAActivator sharedInstance] assignedListenerNamesForEvent:[LAEvent "
                  "eventWithName:@\"status-bar-hold\" mode:@\"springboard\"]]"),
        "()");
    EXPECT_NE(presented_by_its_page(phone), "nil");
  }
};

TEST_F(UntouchedDevice, IsANewPhoneThatIsDeletedAfterwards) {
  const fs::path temporary = folder() / "temporary";
  fs::create_directories(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
  {
    RunningPhone phone(started({"--new-phone"}));
    expect_untouched(phone);
  }
  unsetenv("TMPDIR");
  EXPECT_TRUE(fs::is_empty(temporary));
  EXPECT_FALSE(fs::exists(device()));
}

TEST_F(UntouchedDevice, IsMadeInANamedRoot) {
  RunningPhone phone(headless({"--console"}));
  expect_untouched(phone);
}

TEST_F(UntouchedDevice, IsUsedForAScript) {
  const fs::path script = folder() / "first.scn";
  std::ofstream(script) << "advance 1\nexpect enabled == NO\n";
  RunningPhone phone({"--headless", "--music", music(), "--script", script});
  EXPECT_EQ(phone.wait_for_end(), 0) << phone.errors();
}

}  // namespace
