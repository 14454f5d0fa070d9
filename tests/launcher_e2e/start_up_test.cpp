#include "tests/launcher_e2e/phone_test.h"
#include "tests/support/variable.h"

namespace {

using namespace launcher_e2e;
using host::test::Variable;
using testing::HasSubstr;
using testing::SizeIs;

class StartUp : public PhoneTest {
 protected:
  static constexpr const char* kNoText = "odd-\xff\xc3";

  static void expect_refusal(RunningPhone& phone, const std::string& reason) {
    EXPECT_EQ(phone.wait_for_end(), 2);
    ASSERT_THAT(phone.error_lines(), SizeIs(1)) << phone.errors();
    EXPECT_THAT(phone.error_lines()[0], HasSubstr(reason));
  }
  static void expect_life(RunningPhone& phone) {
    EXPECT_EQ(phone.ask("advance 3"), "ok") << phone.errors();
    EXPECT_EQ(phone.ask("print isShow"), "NO");
    EXPECT_EQ(phone.ask("quit"), "ok");
    EXPECT_EQ(phone.wait_for_end(), 0) << phone.errors();
  }
};

TEST_F(StartUp, LeavesOutAVariableThatIsNoText) {
  const Variable odd("SONAVUE_ODD", kNoText);
  RunningPhone phone(headless({"--console"}));
  expect_life(phone);
  EXPECT_EQ(phone.count_of_errors_with("SONAVUE_ODD"), 1);
}

TEST_F(StartUp, RefusesAHomeThatIsNoText) {
  const Variable home("HOME", folder() / kNoText);
  RunningPhone phone(headless({"--console"}));
  expect_refusal(phone, "HOME is not valid UTF-8");
}

TEST_F(StartUp, RefusesARootThatIsNoText) {
  RunningPhone phone({"--headless", "--console", "--root", folder() / kNoText});
  expect_refusal(phone, "odd-%ff%c3 is not valid UTF-8");
  EXPECT_FALSE(fs::exists(folder() / kNoText));
}

TEST_F(StartUp, TakesMusicAndScreenshotsFromFoldersWithAnyName) {
  const fs::path odd = folder() / kNoText;
  fs::create_directories(odd);
  media_tests::write_tone(odd / "tone.flac");
  RunningPhone phone({"--headless", "--console", "--root", root(), "--music", odd, "--screenshots",
                      odd / "50% more"});
  EXPECT_EQ(phone.ask("print [[[[[MPMediaQuery alloc] init] autorelease] items] count]"), "1");
  EXPECT_EQ(phone.ask("screenshot a.png"), "ok");
  EXPECT_TRUE(fs::exists(odd / "50% more/a.png"));
  expect_life(phone);
}

TEST_F(StartUp, NeedsNoWorkingFolder) {
  const fs::path before = fs::current_path();
  fs::create_directories(folder() / "gone");
  fs::current_path(folder() / "gone");
  fs::remove(folder() / "gone");
  RunningPhone phone(headless({"--console"}));
  RunningPhone nowhere({"--headless", "--console", "--root", "here"});
  fs::current_path(before);
  expect_life(phone);
  expect_refusal(nowhere, "here: No such file or directory");
}

TEST_F(StartUp, EndsWithoutADisplay) {
  const Variable display("DISPLAY", ":4242");
  const Variable none("WAYLAND_DISPLAY", "nowhere");
  RunningPhone phone({"--root", root(), "--music", music()});
  EXPECT_EQ(phone.wait_for_end(), 2) << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("the display nowhere :4242 cannot be reached"), 1)
      << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("--browser"), 1);
  EXPECT_EQ(phone.count_of_errors_with("--headless"), 1);
}

TEST_F(StartUp, LeavesLoopsOfLinksAsTheyAre) {
  run_once();
  std::vector<fs::path> loops;
  for (const char* name :
       {"Library/Preferences/org.plumvane.SonavueSettings.plist",
        "Library/Preferences/gesture-assignments.plist", "Library/SpringBoard/IconState.plist",
        "Library/Preferences/com.apple.springboard.plist", "Media/playback.plist",
        "Media/library.sqlite"}) {
    const fs::path file = root() / "var/mobile" / name;
    fs::create_directories(file.parent_path());
    fs::remove(file);
    fs::create_symlink(file.filename(), file);
    loops.push_back(file);
  }
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask("print [[LAActivator sharedInstance] assignedListenerNamesForEvent:[LAEvent "
                      "eventWithName:@\"status-bar-hold\" mode:@\"springboard\"]]"),
            "()");
  expect_life(phone);
  for (const fs::path& loop : loops)
    EXPECT_TRUE(fs::is_symlink(loop)) << loop;
  for (const char* name :
       {"SonavueSettings.plist cannot be written", "IconState.plist cannot be read",
        "playback.plist cannot be read", "library.sqlite cannot be kept",
        "gesture-assignments.plist cannot be read"})
    EXPECT_EQ(phone.count_of_errors_with(name), 1) << name << "\n" << phone.errors();
}

/// Folders that no one may enter.
class ForbiddenFolders : public StartUp {
 protected:
  ForbiddenFolders() { run_once(); }
  ~ForbiddenFolders() override {
    for (const fs::path& each : folders_)
      fs::permissions(each, fs::perms::owner_all);
  }
  void forbid(const fs::path& each) {
    fs::create_directories(each);
    fs::permissions(each, fs::perms::none);
    folders_.push_back(each);
  }

 private:
  std::vector<fs::path> folders_;
};

TEST_F(ForbiddenFolders, OfThePhonesDataCostNothingElse) {
  for (const char* name : {"Media", "Library/SpringBoard", "Library/Caches"})
    forbid(root() / "var/mobile" / name);
  RunningPhone phone(headless({"--console"}), Hardship::kOrdinaryUser);
  expect_life(phone);
}

TEST_F(ForbiddenFolders, OfTheStagedFilesAreNamed) {
  forbid(libraries());
  RunningPhone phone(headless({"--console"}), Hardship::kOrdinaryUser);
  expect_refusal(phone, libraries().string() + ": Permission denied");
}

}  // namespace
