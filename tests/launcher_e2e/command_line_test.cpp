#include <sys/stat.h>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;
using testing::SizeIs;

class BadCommandLines : public PhoneTest {
 protected:
  void expect_refusal(const Arguments& arguments, const std::string& reason) {
    RunningPhone phone(arguments, Hardship::kOrdinaryUser);
    EXPECT_EQ(phone.wait_for_end(), 2);
    ASSERT_THAT(phone.error_lines(), SizeIs(1)) << phone.errors();
    EXPECT_THAT(phone.error_lines()[0], HasSubstr(reason));
    EXPECT_EQ(phone.output(), "");
  }
};

TEST_F(BadCommandLines, AMissingMusicFolder) {
  expect_refusal({"--headless", "--root", root(), "--music", folder() / "nothing"},
                 (folder() / "nothing is not a folder of music").string());
  expect_refusal({"--headless", "--root", root(), "--music", music() / "tone.flac"},
                 "is not a folder of music");
}

TEST_F(BadCommandLines, AnUnknownDevice) {
  expect_refusal(headless({"--device", "iPhone99,9"}), "unknown device iPhone99,9");
}

TEST_F(BadCommandLines, ARootThatIsAFileOrBelowOne) {
  media_tests::write_bytes(root(), "a file in its place");
  expect_refusal(headless(), root());
  expect_refusal({"--headless", "--root", root() / "below"}, root() / "below");
}

TEST_F(BadCommandLines, ARootThatMayNotBeWritten) {
  fs::create_directories(root());
  chmod(root().c_str(), 0500);
  expect_refusal(headless(), root().string() + ": Permission denied");
  chmod(root().c_str(), 0700);
}

TEST_F(BadCommandLines, AScriptThatMayNotBeRead) {
  const std::string script = folder() / "secret.scn";
  media_tests::write_bytes(script, "print isShow\n");
  chmod(script.c_str(), 0);
  expect_refusal(headless({"--script", script}), script + " cannot be read");
}

TEST_F(BadCommandLines, AnOptionThatDoesNotExist) {
  expect_refusal(headless({"--colour"}), "--colour");
  expect_refusal(headless({"song.mp3"}), "song.mp3");
}

TEST_F(BadCommandLines, AnOptionWithoutItsValue) {
  expect_refusal({"--headless", "--root"}, "--root");
}

TEST_F(BadCommandLines, ADiskTooFullForTheDevice) {
  RunningPhone phone(headless(), Hardship::kFullDisk);
  EXPECT_EQ(phone.wait_for_end(), 2);
  ASSERT_THAT(phone.error_lines(), SizeIs(1)) << phone.errors();
  EXPECT_THAT(phone.error_lines()[0], HasSubstr(root().string()));
}

using Scripts = PhoneTest;

TEST_F(Scripts, WithoutARootPlayOnANewDeviceEachTime) {
  const fs::path script = folder() / "once.scn";
  const fs::path temporary = folder() / "temporary";
  fs::create_directories(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
  const std::string file = "@\"/var/mobile/Library/Preferences/mark.plist\"";
  media_tests::write_bytes(
      script, "expect [[NSFileManager defaultManager] fileExistsAtPath:" + file + "] == NO\n" +
                  "expect [@\"mark\" writeToFile:" + file + " atomically:YES] == YES\n");
  for (int run = 0; run < 2; ++run) {
    RunningPhone phone({"--headless", "--music", music(), "--script", script});
    EXPECT_EQ(phone.wait_for_end(), 0) << phone.errors();
  }
  EXPECT_TRUE(fs::is_empty(temporary));
  unsetenv("TMPDIR");
}

}  // namespace
