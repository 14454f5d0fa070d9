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

TEST_F(Scripts, EachPlayOnAPhoneOfTheirOwnAndAreReportedTogether) {
  const std::string file = "@\"/var/mobile/Library/Preferences/mark.plist\"";
  const std::string is_new =
      "expect [[NSFileManager defaultManager] fileExistsAtPath:" + file + "] == NO\n";
  media_tests::write_bytes(folder() / "first.scn",
                           is_new + "expect [@\"mark\" writeToFile:" + file +
                               " atomically:YES] == YES\necho <first> & last\n");
  media_tests::write_bytes(folder() / "fails.scn", "advance 1\nexpect isShow == YES\nrest\n");
  media_tests::write_bytes(folder() / "second.scn", is_new + "advance 1\nrest\n");
  const fs::path report = folder() / "report.xml";
  RunningPhone phone({"--headless", "--music", music(), "--junit", report,  //
                      "--script", folder() / "first.scn", "--script", folder() / "fails.scn",
                      "--script", folder() / "second.scn"});
  EXPECT_EQ(phone.wait_for_end(), 1);
  EXPECT_EQ(phone.output(), "<first> & last\n");
  EXPECT_THAT(phone.errors(),
              HasSubstr((folder() / "fails.scn").string() +
                        ":2: error: expected isShow == YES, but NO is not == YES\n"));
  const std::string xml = media_tests::read_bytes(report);
  EXPECT_THAT(xml, HasSubstr(R"(<testsuites tests="6" failures="1" errors="0" skipped="1" )"));
  EXPECT_THAT(xml, HasSubstr("<failure message=\"expected isShow == YES, but NO is not == YES\">"));
  EXPECT_THAT(xml, HasSubstr("<system-out>&lt;first&gt; &amp; last\n</system-out>"));
}

TEST_F(Scripts, OfWhichOneCannotBeReadAreReportedAndTheOthersPlay) {
  const fs::path secret = folder() / "secret.scn";
  media_tests::write_bytes(secret, "rest\n");
  chmod(secret.c_str(), 0);
  media_tests::write_bytes(folder() / "good.scn", "advance 1\nrest\n");
  const fs::path report = folder() / "report.xml";
  RunningPhone phone({"--headless", "--music", music(), "--junit", report, "--script", secret,
                      "--script", folder() / "good.scn"},
                     Hardship::kOrdinaryUser);
  EXPECT_EQ(phone.wait_for_end(), 2);
  const std::string xml = media_tests::read_bytes(report);
  EXPECT_THAT(xml, HasSubstr(R"(<testsuites tests="2" failures="0" errors="1" skipped="0" )"));
}

TEST_F(Scripts, WhoseReportCannotBeWrittenSaySo) {
  media_tests::write_bytes(folder() / "good.scn", "advance 1\nrest\n");
  const fs::path locked = folder() / "locked";
  fs::create_directories(locked);
  chmod(locked.c_str(), 0500);
  RunningPhone phone({"--headless", "--music", music(), "--junit", locked / "report.xml",
                      "--script", folder() / "good.scn"},
                     Hardship::kOrdinaryUser);
  EXPECT_EQ(phone.wait_for_end(), 2);
  EXPECT_THAT(phone.errors(), HasSubstr((locked / "report.xml").string() +
                                        " cannot be written: Permission denied"));
}

}  // namespace
