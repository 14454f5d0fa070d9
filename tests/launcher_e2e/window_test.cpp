#include <sys/resource.h>
#include <unistd.h>

#include "tests/launcher_e2e/phone_test.h"
#include "tests/support/desktop_display.h"

namespace {

using namespace launcher_e2e;
using Frame = DesktopDisplay::Frame;

constexpr int kRightButton = 3;
constexpr int kWheelUp = 4;
constexpr int kWheelDown = 5;
constexpr int kWheelRight = 7;

/// A phone in a window on a display, used with a mouse and a keyboard.
class DesktopWindow : public PhoneTest {
 protected:
  DesktopWindow() { setenv("XDG_STATE_HOME", (folder() / "state").c_str(), 1); }
  ~DesktopWindow() override { unsetenv("XDG_STATE_HOME"); }

  Arguments in_a_window() const { return {"--root", root(), "--music", music(), "--console"}; }
  static bool answers(RunningPhone& phone, const std::string& line, const std::string& wanted) {
    return comes_true([&] { return phone.ask(line) == wanted; });
  }
};

TEST_F(DesktopWindow, TheWheelScrollsAListInAnApplicationAndTurnsPagesOfTheHomeScreen) {
  for (int i = 0; i < 30; ++i)
    media_tests::write_tone(music() / ("tone-" + std::to_string(i) + ".flac"));
  DesktopDisplay display;
  RunningPhone phone(in_a_window());
  ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
  ASSERT_EQ(phone.ask("system open com.apple.Music"), "ok");
  ASSERT_TRUE(answers(phone, "process Music", "ok"));
  const std::string at_top =
      "expect [[[UIApplication sharedApplication] songsTable] contentOffset] == {0, -64}";
  ASSERT_TRUE(answers(phone, at_top, "ok"));
  display.point_at(0.5, 0.5);
  EXPECT_TRUE(comes_true([&] {
    display.click(kWheelDown);
    return phone.ask(at_top) != "ok";
  }));
  for (int i = 0; i < 20; ++i)
    display.click(kWheelUp);
  EXPECT_TRUE(answers(phone, at_top, "ok"));
  ASSERT_EQ(phone.ask("process SpringBoard"), "ok");

  display.press("F1");
  ASSERT_TRUE(answers(phone, "rest", "ok"));
  ASSERT_EQ(phone.ask("system edit off"), "ok");
  display.click(kWheelRight);
  EXPECT_TRUE(
      answers(phone, "print [[SBIconController sharedInstance] currentIconListIndex]", "1"));
}

TEST_F(DesktopWindow, KeysWorkThePlayerAndTheRightButtonHoldsAnIcon) {
  DesktopDisplay display;
  RunningPhone phone(in_a_window());
  ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
  const std::string plays = "print [[SBMediaController sharedInstance] isPlaying]";
  ASSERT_EQ(phone.ask(plays), "NO");
  display.press("space");
  EXPECT_TRUE(answers(phone, plays, "YES"));
  display.press("space");
  EXPECT_TRUE(answers(phone, plays, "NO"));
  ASSERT_TRUE(answers(phone, "rest", "ok"));

  // The list of keys takes one key.
  display.press("F12");
  display.press("space");
  display.press("space");
  EXPECT_TRUE(answers(phone, plays, "YES"));

  const std::string edits = "print [[SBIconController sharedInstance] isEditing]";
  EXPECT_EQ(phone.ask(edits), "NO");
  display.point_at(0.22, 0.13);
  display.click(kRightButton);
  EXPECT_TRUE(answers(phone, edits, "YES"));
}

TEST_F(DesktopWindow, TheKeyboardAloneOpensAnApplication) {
  DesktopDisplay display;
  RunningPhone phone(in_a_window());
  ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
  ASSERT_TRUE(answers(phone, "rest", "ok"));
  const std::string mode = "print [[LAActivator sharedInstance] currentEventMode]";
  EXPECT_EQ(phone.ask(mode), R"("springboard")");
  for (const char* keys : {"Tab", "Right", "shift+Tab", "Return"})
    display.press(keys);
  EXPECT_TRUE(answers(phone, mode, R"("application")"));
}

TEST_F(DesktopWindow, ShowsInTheStatusBarThatTheDiskIsFullForAnApplication) {
  DesktopDisplay display;
  RunningPhone phone(in_a_window());
  ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
  ASSERT_EQ(phone.ask("system open com.apple.Preferences"), "ok");
  ASSERT_TRUE(answers(phone, "process Preferences", "ok"));
  const std::string number = phone.ask("print [[NSProcessInfo processInfo] processIdentifier]");
  ASSERT_GT(std::atoi(number.c_str()), 1) << number;
  const rlimit nothing{0, 0};
  ASSERT_EQ(prlimit(std::atoi(number.c_str()), RLIMIT_FSIZE, &nothing, nullptr), 0);
  EXPECT_EQ(phone.ask("print [[[[PrefsMusicController alloc] init] autorelease] "
                      "setShuffles:YES specifier:nil]"),
            "void");
  ASSERT_EQ(phone.ask("process SpringBoard"), "ok");
  EXPECT_TRUE(answers(phone,
                      "print [[[[[[UIApplication sharedApplication] windows] objectAtIndex:1] "
                      "subviews] lastObject] text]",
                      "\"The disk cannot be written\""));
  EXPECT_EQ(phone.count_of_errors_with("com.apple.mobileipod.plist cannot be written"), 1);
}

TEST_F(DesktopWindow, FillsTheDisplayAndReturns) {
  DesktopDisplay display;
  RunningPhone phone(in_a_window());
  ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
  const Frame before = display.frame();
  EXPECT_GT(before.height, before.width);
  for (const char* keys : {"F11", "alt+Return"}) {
    display.press(keys);
    EXPECT_TRUE(comes_true([&] { return display.frame() == Frame{0, 0, 1600, 1300}; })) << keys;
    display.press(keys);
    EXPECT_TRUE(comes_true([&] { return display.frame().width == before.width; })) << keys;
  }
}

TEST_F(DesktopWindow, IsLargerOnAScaledDesktopAndRemembersItsSize) {
  Frame plain;
  {
    DesktopDisplay display;
    RunningPhone phone(in_a_window());
    ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
    plain = display.frame();
  }
  {
    DesktopDisplay display("Xft.dpi: 120\n");
    RunningPhone phone(in_a_window());
    ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
    EXPECT_NEAR(display.frame().width, plain.width * 1.25, 1);
    EXPECT_NEAR(display.frame().height, plain.height * 1.25, 1);
    display.resize(500, 700);
    const fs::path kept = folder() / "state/sonavue/window-iPhone7,2";
    EXPECT_TRUE(comes_true([&] { return fs::exists(kept); }));
    // A size that fills the display is not one to remember.
    display.press("F11");
    EXPECT_TRUE(comes_true([&] { return display.frame().width == 1600; }));
    display.close_window();
    EXPECT_EQ(phone.wait_for_end(), 0);
  }
  DesktopDisplay display;
  RunningPhone phone(in_a_window());
  ASSERT_TRUE(display.has_window("sonavue")) << phone.errors();
  EXPECT_EQ(display.frame().width, 500);
  EXPECT_EQ(display.frame().height, 700);
}

}  // namespace
