#include "host/springboard/system/system_actions.h"
#include "objc/class_builder.h"
#include "platform/Activator/LAActivator.h"
#include "platform/MediaPlayerUI/MPUNowPlayingController.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

std::vector<std::string> happened;
std::string listener_class;
std::string listener_name;
std::function<void()> on_registration;
std::function<void()> on_first_tick;

void register_listener(objc::Object, objc::Object listener, NSString name) {
  happened.push_back("registerListener:forName:");
  listener_class = objc::cast<NSObject>(listener).className().UTF8String();
  listener_name = text(name);
  if (on_registration) on_registration();
}
void tick(SpringBoard) {
  if (const auto told = std::exchange(on_first_tick, nullptr)) told();
}

/// From now on the gesture service only records which listener is registered.
void watch_gesture_service() {
  objc::replace_method<&register_listener>(LAActivator::cls(), "registerListener:forName:");
}

template <objc::FixedString Selector>
using SpringBoardSpy = MethodSpy<Selector, void(SpringBoard)>;

class StartUp : public PanelTest {};

TEST_F(StartUp, RunsItsStepsInOrderAfterTheHomeScreenLaunched) {
  watch_gesture_service();
  write_preferences("<key>checked</key><true/>");
  // Below the extension's replacement: this is the system's own method.
  const MethodSpy<"applicationDidFinishLaunching:", void(SpringBoard, objc::Object)> system(
      SpringBoard::cls(), &happened);
  load_extension();
  bool home_screen_was_there = false;
  bool panel_had_its_target = true;
  on_registration = [&] {
    home_screen_was_there = static_cast<bool>(icon_view(kMusic).window());
    panel_had_its_target = static_cast<bool>(global<SpringBoard>("Spring"));
  };
  const MethodSpy<"init", objc::Object(MPUNowPlayingController)> now_playing(
      MPUNowPlayingController::cls(), &happened);
  const MethodSpy<"deviceNumber", int(SpringBoard)> number(SpringBoard::cls(), &happened);
  const SpringBoardSpy<"Loping1"> watch(SpringBoard::cls(), &happened);
  const SpringBoardSpy<"infoMusic"> refresh(SpringBoard::cls(), &happened);
  const SpringBoardSpy<"changePreferences"> poll(SpringBoard::cls(), &happened);
  const SpringBoardSpy<"changesPrefs"> apply(SpringBoard::cls(), &happened);
  PhoneTest::launch();
  on_registration = nullptr;

  // Later timer ticks follow; drop them.
  ASSERT_GE(happened.size(), 8u);
  happened.resize(8);
  EXPECT_THAT(happened,
              ::testing::ElementsAre("applicationDidFinishLaunching:", "init",
                                     "registerListener:forName:", "deviceNumber", "Loping1",
                                     "infoMusic", "changePreferences", "changesPrefs"));
  EXPECT_EQ(listener_class, "SVActivatorListener");
  EXPECT_EQ(listener_name, "org.plumvane.Sonavue2");
  EXPECT_TRUE(home_screen_was_there);
  EXPECT_FALSE(panel_had_its_target) << "an event that arrives at once has no effect";
  EXPECT_EQ(global<SpringBoard>("Spring"), application);
}

TEST_F(StartUp, TheColourIsReadBeforeTheFirstTimerFires) {
  write_preferences("<key>tint</key><string>red</string><key>checked</key><true/>");
  load_extension();
  for (const char* timer : {"Loping1", "infoMusic", "changePreferences"})
    objc::replace_method<&tick>(SpringBoard::cls(), timer);
  UIColor colour;
  on_first_tick = [&] { colour = global<UIColor>("newColor"); };
  PhoneTest::launch();
  EXPECT_FALSE(on_first_tick) << "no timer has fired yet";
  EXPECT_EQ(colour, UIColor::redColor());
}

TEST_F(StartUp, TimersTickAtTheirIntervals) {
  launch();
  const SpringBoardSpy<"Loping1"> watch(SpringBoard::cls());
  const SpringBoardSpy<"infoMusic"> refresh(SpringBoard::cls());
  const SpringBoardSpy<"changePreferences"> poll(SpringBoard::cls());
  // Half an interval more, so that rounding cannot drop a tick.
  advance(10.05);
  EXPECT_NEAR(watch.count(), 100, 1);
  EXPECT_NEAR(poll.count(), 100, 1);
  EXPECT_EQ(refresh.count(), 10);
}

TEST_F(StartUp, AppliesThePreferencesAgainThoughNothingChanged) {
  write_preferences("<key>checked</key><true/>");
  load_extension();
  const SpringBoardSpy<"changesPrefs"> apply(SpringBoard::cls());
  PhoneTest::launch();
  advance(1);
  EXPECT_EQ(apply.count(), 1);
}

TEST_F(StartUp, WithoutTheMusicApplicationItEndsWithOneLogLine) {
  remove_application("Music");
  use_no_preferences();
  load_extension();
  const SpringBoardSpy<"Loping1"> watch(SpringBoard::cls());
  const SpringBoardSpy<"infoMusic"> refresh(SpringBoard::cls());
  const SpringBoardSpy<"changePreferences"> poll(SpringBoard::cls());
  const SpringBoardSpy<"changesPrefs"> apply(SpringBoard::cls());
  media_tests::CapturedLog log;
  PhoneTest::launch();
  advance(5);
  EXPECT_EQ(log.count("<Sonavue> Error while hooking Music app!"), 1);
  EXPECT_EQ(watch.count() + refresh.count() + poll.count() + apply.count(), 0);
  EXPECT_FALSE(std::filesystem::exists(preferences_file()));
  EXPECT_FALSE(is("added"));
  EXPECT_FALSE(music_icon());
  EXPECT_FALSE(view("container"));
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_FALSE(global<UIColor>("newColor"));
}

TEST_F(StartUp, ApexLeavesTheIconAndItsWatchAlone) {
  write_preferences("<key>apex</key><true/>");
  load_extension();
  const SpringBoardSpy<"Loping1"> watch(SpringBoard::cls());
  PhoneTest::launch();
  const auto others = [&](const char* bundle) {
    return icon_view(bundle).gestureRecognizers().count();
  };
  advance(1);
  EXPECT_EQ(watch.count(), 0);
  EXPECT_FALSE(is("added"));
  EXPECT_EQ(others(kMusic), others(kCalendar));
  // The setting is only read at launch.
  write_preferences("<key>apex</key><false/>");
  advance(1);
  EXPECT_EQ(watch.count(), 0);
  EXPECT_FALSE(is("added"));
}

// Only until the settings are applied.
TEST_F(StartUp, AnIconInAFolderKeepsTheSystemsRecognizers) {
  PhoneTest::launch();
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  settle();
  const NSUInteger own = icon_view(kCalendar).gestureRecognizers().count();
  load_extension();
  silence("changesPrefs"_sel);
  launch();
  EXPECT_TRUE(view("music"));
  EXPECT_FALSE(is("added"));
  EXPECT_EQ(music_icon().gestureRecognizers().count(), own);
}

}  // namespace
}  // namespace host::test
