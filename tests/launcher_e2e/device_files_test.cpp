#include <sys/stat.h>

#include <fstream>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kIsFile =
    "print [[NSFileManager defaultManager] "
    "fileExistsAtPath:@\"/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist\"]";
constexpr const char* kChecked =
    "print [[NSDictionary dictionaryWithContentsOfFile:"
    "@\"/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist\"] "
    "objectForKey:@\"checked\"]";

class PreferencesFile : public PhoneTest {
 protected:
  PreferencesFile() { fs::create_directories(preferences().parent_path()); }

  /// Starts the phone and lets it poll for some seconds.
  void expect_life(RunningPhone& phone) {
    EXPECT_EQ(phone.ask("advance 3"), "ok");
    EXPECT_EQ(phone.ask("print isShow"), "NO");
    EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
  }
};

TEST_F(PreferencesFile, IsMadeAtTheFirstStart) {
  RunningPhone phone(headless({"--console"}));
  expect_life(phone);
  EXPECT_EQ(phone.ask(kChecked), "YES");
}

TEST_F(PreferencesFile, IsRewrittenIfMalformedWithOneComplaint) {
  media_tests::write_bytes(preferences(), "<plist><dict><key>cover</key>");
  RunningPhone phone(headless({"--console"}));
  expect_life(phone);
  EXPECT_EQ(phone.ask(kChecked), "YES");
  EXPECT_LE(phone.count_of_errors_with("warning: File NSDictionary.m"), 1);
}

TEST_F(PreferencesFile, StaysIfItIsAFolderWithOneComplaintPerPlace) {
  fs::create_directories(preferences());
  RunningPhone phone(headless({"--console"}));
  expect_life(phone);
  EXPECT_EQ(phone.ask(kIsFile), "YES");
  EXPECT_TRUE(fs::is_directory(preferences()));
  EXPECT_EQ(phone.count_of_errors_with("is not read: it is a folder"), 1);
  EXPECT_EQ(phone.count_of_errors_with("Is a directory"), 1);
}

TEST_F(PreferencesFile, IsReplacedOnceIfUnreadableAndKept) {
  std::ofstream(preferences()) << "{ cover = NO; }";
  chmod(preferences().c_str(), 0);
  RunningPhone phone(headless({"--console"}), Hardship::kOrdinaryUser);
  expect_life(phone);
  EXPECT_EQ(phone.ask("quit"), "ok");
  // Its owner can read the new file, so it is not written again.
  const std::string text = media_tests::read_bytes(preferences());
  EXPECT_THAT(text, HasSubstr("checked"));
  EXPECT_THAT(text, Not(HasSubstr("cover")));
  EXPECT_EQ(fs::status(preferences()).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(media_tests::read_bytes(preferences().string() + ".unreadable"), "{ cover = NO; }");
  EXPECT_FALSE(fs::exists(preferences().string() + ".unreadable-2"));
  EXPECT_EQ(phone.count_of_errors_with("could not be read"), 1);
}

using FullDisk = PhoneTest;

TEST_F(FullDisk, LeavesAWorkingPhoneAndReportsEachLossOnce) {
  run_once();
  fs::remove(preferences());
  fs::remove_all(root() / "var/mobile/Media");
  RunningPhone phone(headless({"--console"}), Hardship::kFullDisk);
  ASSERT_EQ(phone.ask("advance 3"), "ok") << phone.errors();
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.ask("print [[[[[MPMediaQuery alloc] init] autorelease] items] count]"), "1");
  EXPECT_EQ(phone.ask(kIsFile), "NO");
  EXPECT_EQ(phone.count_of_errors_with("the music index"), 1);
  EXPECT_EQ(phone.count_of_errors_with("cannot be kept"), 1);
  EXPECT_EQ(phone.count_of_errors_with("SonavueSettings.plist cannot be written: File too large"),
            1);
}

TEST_F(FullDisk, ReportsAScreenshotThatCannotBeWritten) {
  run_once();
  fs::create_directories(folder() / "screenshots");
  RunningPhone phone(headless({"--console", "--screenshots", folder() / "screenshots"}),
                     Hardship::kFullDisk);
  EXPECT_THAT(phone.ask("screenshot a.png"), testing::StartsWith("error: "));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
}

}  // namespace
