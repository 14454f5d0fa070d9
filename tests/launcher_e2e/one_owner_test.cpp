#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;
using testing::SizeIs;

using OneOwner = PhoneTest;

TEST_F(OneOwner, ASecondStartNamesTheProcessThatHasTheDevice) {
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask("print isShow"), "NO");
  RunningPhone second(headless());
  EXPECT_EQ(second.wait_for_end(), 4);
  ASSERT_THAT(second.error_lines(), SizeIs(1)) << second.errors();
  EXPECT_THAT(second.error_lines()[0],
              HasSubstr(root().string() + " is already in use by process " +
                        std::to_string(phone.launcher())));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
}

TEST_F(OneOwner, ASecondStartShowsTheWindowOfTheFirst) {
  setenv("SDL_VIDEODRIVER", "dummy", 1);
  const Arguments in_a_window = {"--root", root(), "--music", music()};
  RunningPhone phone(in_a_window);
  ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2"));
  RunningPhone second(in_a_window);
  unsetenv("SDL_VIDEODRIVER");
  EXPECT_EQ(second.wait_for_end(), 0);
  ASSERT_THAT(second.error_lines(), SizeIs(1)) << second.errors();
  EXPECT_THAT(second.error_lines()[0], HasSubstr("window is in front"));
}

TEST_F(OneOwner, TwoStartsAtOnceOnANewDeviceBothEndWell) {
  const fs::path script = folder() / "a.scn";
  media_tests::write_bytes(script, "advance 1\nexpect isShow == NO\n");
  RunningPhone first(headless({"--script", script}));
  RunningPhone second(headless({"--script", script}));
  const int statuses[] = {first.wait_for_end(), second.wait_for_end()};
  EXPECT_THAT(statuses, testing::Contains(0)) << first.errors() << second.errors();
  EXPECT_THAT(statuses, testing::Each(testing::AnyOf(0, 4))) << first.errors() << second.errors();
  RunningPhone third(headless({"--script", script}));
  EXPECT_EQ(third.wait_for_end(), 0) << third.errors();
}

TEST_F(OneOwner, TheDeviceOfAKilledLauncherIsFreeAndItsTemporaryFoldersAreRemoved) {
  const fs::path temporary = folder() / "temporary";
  const fs::path runtime = folder() / "runtime";
  fs::create_directories(temporary);
  fs::create_directories(runtime);
  setenv("TMPDIR", temporary.c_str(), 1);
  setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
  const Arguments new_phone = {"--headless", "--new-phone", "--music", music(), "--console"};
  for (const Arguments& arguments : {headless({"--console"}), new_phone}) {
    RunningPhone phone(arguments);
    ASSERT_EQ(phone.ask("print isShow"), "NO");
    phone.kill_launcher();
  }
  EXPECT_FALSE(fs::is_empty(temporary));
  EXPECT_FALSE(fs::is_empty(runtime));
  run_once();
  unsetenv("TMPDIR");
  EXPECT_TRUE(fs::is_empty(temporary));
  EXPECT_TRUE(fs::is_empty(runtime));
}

}  // namespace
