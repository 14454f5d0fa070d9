#include <signal.h>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

/// A phone with its applications as separate processes.
class Applications : public PhoneTest {
 protected:
  Applications() : phone_(headless({"--console"})) {}

  void open_music() {
    ASSERT_EQ(phone_.ask("system open com.apple.Music"), "ok");
    ASSERT_EQ(phone_.ask("advance 1"), "ok");
  }
  std::string ask_music(const std::string& line) {
    if (const auto answer = phone_.ask("process Music"); answer != "ok") return answer;
    const std::string answer = phone_.ask(line);
    phone_.ask("process SpringBoard");
    return answer;
  }

  static constexpr const char* kRows =
      "print [[[UIApplication sharedApplication] songsTable] numberOfRowsInSection:0]";

  RunningPhone phone_;
};

TEST_F(Applications, MusicIsAProcessBesideTheHomeScreenAndListsItsSongs) {
  open_music();
  ASSERT_NE(phone_.child("Music"), 0);
  EXPECT_EQ(ask_music(kRows), "1");
  EXPECT_EQ(
      phone_.ask("expect [[LAActivator sharedInstance] currentEventMode] == @\"application\""),
      "ok");
}

TEST_F(Applications, MusicSurvivesARestartOfTheHomeScreen) {
  open_music();
  const pid_t music = phone_.child("Music");
  ASSERT_NE(music, 0);
  ASSERT_EQ(phone_.ask("tap 187 90"), "ok");
  ASSERT_EQ(phone_.ask("advance 1"), "ok");
  const char* top = "print [[[UIApplication sharedApplication] navigation] topViewController]";
  const std::string before = ask_music(top);
  ASSERT_TRUE(before.find("MusicNowPlayingController") != before.npos) << before;

  const pid_t home_screen = phone_.home_screen();
  kill(home_screen, SIGKILL);
  ASSERT_NE(phone_.wait_for_home_screen_after(home_screen), 0);
  ASSERT_EQ(phone_.ask("print isShow"), "NO");
  EXPECT_EQ(phone_.child("Music"), music);

  open_music();
  EXPECT_EQ(phone_.child("Music"), music);
  EXPECT_EQ(ask_music(top), before);
  // It still reacts to fingers, with a clock that has started again.
  ASSERT_EQ(phone_.ask("drag 2 300 350 300 0.3"), "ok");
  ASSERT_EQ(phone_.ask("advance 1"), "ok");
  EXPECT_NE(ask_music(top), before);
}

TEST_F(Applications, ACrashIsOneLogLineAndTheHomeScreenAppears) {
  open_music();
  const pid_t music = phone_.child("Music");
  kill(music, SIGSEGV);
  ASSERT_TRUE(phone_.waits_for_error("Music has ended"));
  EXPECT_EQ(phone_.ask("advance 1"), "ok");
  EXPECT_EQ(phone_.ask("process Music"), "error: Music is not running");
  EXPECT_EQ(
      phone_.ask("expect [[LAActivator sharedInstance] currentEventMode] == @\"springboard\""),
      "ok");
  open_music();
  EXPECT_NE(phone_.child("Music"), music);
  EXPECT_EQ(ask_music(kRows), "1");
}

TEST_F(Applications, OneThatHangsIsClosed) {
  open_music();
  const pid_t music = phone_.child("Music");
  kill(music, SIGSTOP);
  EXPECT_EQ(phone_.ask("advance 2"), "ok");
  EXPECT_TRUE(phone_.waits_for_error("Music does not answer: closed"));
  EXPECT_EQ(phone_.child("Music"), 0);
  EXPECT_EQ(
      phone_.ask("expect [[LAActivator sharedInstance] currentEventMode] == @\"springboard\""),
      "ok");
}

TEST_F(Applications, TheyEndWithThePhone) {
  open_music();
  const pid_t music = phone_.child("Music");
  ASSERT_NE(music, 0);
  EXPECT_EQ(phone_.ask("quit"), "ok");
  EXPECT_EQ(phone_.wait_for_end(), 0);
  EXPECT_EQ(kill(music, 0), -1);
}

TEST_F(Applications, AListThatIsTooLongForTheConnectionIsAnError) {
  open_music();
  ASSERT_EQ(phone_.ask("process Music"), "ok");
  const std::string page = "[[[UIApplication sharedApplication] navigation] view]";
  const std::string whole = phone_.ask("tree");
  EXPECT_TRUE(whole.ends_with("\nok")) << whole;
  const std::string add = "print [" + page +
                          " addSubview:[[[UIView alloc] initWithFrame:{{100000.125, 100000.125}, "
                          "{100000.125, 100000.125}}] autorelease]]";
  for (int i = 0; i < 1000; ++i)
    ASSERT_EQ(phone_.ask(add), "void");
  EXPECT_EQ(phone_.ask("tree"),
            "error: the list is too long for this process; ask for a part of it");
  EXPECT_TRUE(phone_.ask("tree [" + page + " superview]").starts_with("error: "));
  EXPECT_EQ(phone_.ask("tree [[" + page + " subviews] lastObject]"),
            "  UIView {{100000.125, 100000.125}, {100000.125, 100000.125}}\nok");
}

}  // namespace
