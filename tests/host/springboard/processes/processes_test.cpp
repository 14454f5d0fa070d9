
#include "host/foundation/device_paths.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/running_applications.h"
#include "host/launcher/unix_socket.h"
#include "host/media_player/exports.h"
#include "host/media_player/media_service.h"
#include "host/process/phone_screen.h"
#include "host/quartzcore/layers/screen_density.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/processes/application_view.h"
#include "host/springboard/processes/process_keeper.h"
#include "host/springboard/processes/running_processes.h"
#include "host/springboard/switcher/recent_applications.h"
#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBUIController.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/phone_fixture.h"
#include "tests/support/told_user.h"

namespace {

using namespace host;
using namespace host::springboard;
using host::test::kMusic;
using host::test::PhoneTest;

constexpr std::uint32_t kColor = 0xFF336699;
constexpr double kDeadline = 60;

/// Starts the strange application instead of every other.
class StrangePrograms final : public ProcessKeeper {
 public:
  StrangePrograms(const std::filesystem::path& folder, const std::string& behaviour)
      : folder_(folder),
        applications_({PROGRAM_FOLDER, folder}, {{}, {"--behaviour", behaviour}, {}}) {}

  bool open(const std::string& bundle, const std::string& program) override {
    return applications_.open(bundle, program);
  }
  void close(const std::string& bundle) override { applications_.close(bundle); }
  application::Channel connect(const std::string& bundle) override {
    return application::Channel(
        launcher::connected_socket(launcher::application_socket(folder_, bundle)));
  }
  launcher::RunningApplications& applications() { return applications_; }

 private:
  std::filesystem::path folder_;
  launcher::RunningApplications applications_;
};

struct CountedScreen final : screen::Screen {
  void show(const screen::Picture&, std::span<const screen::PixelRect>) override { ++frames; }
  int frames = 0;
};

/// A home screen on which Music is a program that misbehaves.
class ProcessesTest : public PhoneTest {
 protected:
  ~ProcessesTest() override {
    end();
    Configuration none;
    configure(none);
  }

  enum class Time { kReal, kStepped };
  void launch_with(const std::string& behaviour, Time time = Time::kReal) {
    programs_.emplace(device, behaviour);
    Configuration with = configuration();
    with.process_keeper = &*programs_;
    with.has_stepped_clock = time == Time::kStepped;
    configure(with);
    launch();
  }
  void open_music() {
    tap(on_screen(kMusic));
    advance(1);
  }
  RunningProcesses::Process music() const { return running_processes().find(kMusic); }

  /// Runs the loop, whose clock does not move, until the other process has made the condition true.
  bool comes_true(const std::function<bool()>& condition) {
    const RealClock machine;
    const double deadline = machine.now() + kDeadline;
    while (!condition() && machine.now() < deadline)
      loop.run_ready();
    return condition();
  }
  bool has_picture() const { return music() && music()->picture(); }
  std::uint32_t first_pixel() const {
    const auto surface = quartzcore::image_of(music()->picture())->surface();
    return *reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
  }
  bool log_has(std::string_view text) const { return log_.count(text) > 0; }

  media_tests::CapturedLog log_;
  std::optional<StrangePrograms> programs_;
};

TEST_F(ProcessesTest, ATapOpensTheApplicationAndShowsWhatItDraws) {
  launch_with("honest");
  open_music();
  EXPECT_EQ(shown_now(), Shown::Application);
  ASSERT_TRUE(comes_true([&] { return has_picture(); }));
  EXPECT_EQ(first_pixel(), kColor);
}

TEST_F(ProcessesTest, AnApplicationWithoutItsProgramHasOnlyALaunchScreen) {
  launch_with("honest");
  EXPECT_TRUE(open("com.apple.Preferences"));
  advance(1);
  EXPECT_EQ(shown_now(), Shown::Application);
  EXPECT_FALSE(running_processes().find("com.apple.Preferences"));
}

TEST_F(ProcessesTest, HomeLeavesTheApplicationRunningAndItReopensUnchanged) {
  launch_with("honest");
  open_music();
  ASSERT_TRUE(comes_true([&] { return has_picture(); }));
  const pid_t process = programs_->applications().process(kMusic);
  press_home();
  advance(1);
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
  EXPECT_FALSE(music()->is_in_front());
  EXPECT_TRUE(music()->is_alive());
  EXPECT_TRUE(music()->picture());
  open_music();
  EXPECT_TRUE(music()->is_in_front());
  EXPECT_EQ(programs_->applications().process(kMusic), process);
}

TEST_F(ProcessesTest, TouchesGoToTheApplicationInFront) {
  launch_with("honest", Time::kStepped);
  open_music();
  const auto before = quartzcore::image_of(music()->picture())->serial();
  tap({100, 300});
  advance(RunLoop::kFrame);
  EXPECT_NE(quartzcore::image_of(music()->picture())->serial(), before);
  press_home();
  advance(1);
  const auto left = quartzcore::image_of(music()->picture())->serial();
  tap({100, 640});
  advance(1);
  EXPECT_EQ(quartzcore::image_of(music()->picture())->serial(), left);
}

TEST_F(ProcessesTest, TheWheelTurnsInTheApplicationInFront) {
  launch_with("honest", Time::kStepped);
  open_music();
  const auto before = quartzcore::image_of(music()->picture())->serial();
  EXPECT_TRUE(turn_wheel_over({100, 300}, {0, 1}, uikit::WheelKind::Notched));
  advance(RunLoop::kFrame);
  const auto turned = quartzcore::image_of(music()->picture())->serial();
  EXPECT_NE(turned, before);
  press_home();
  advance(1);
  turn_wheel_over({100, 300}, {0, 1}, uikit::WheelKind::Notched);
  advance(1);
  EXPECT_EQ(quartzcore::image_of(music()->picture())->serial(), turned);
}

TEST_F(ProcessesTest, OnASteppedClockThePictureIsUpToDateAtEachStep) {
  launch_with("honest", Time::kStepped);
  EXPECT_TRUE(open(kMusic));
  advance(0);
  EXPECT_TRUE(has_picture());
}

TEST_F(ProcessesTest, TheApplicationsConsoleAnswers) {
  launch_with("honest", Time::kStepped);
  open_music();
  EXPECT_EQ(ask_application("Music", "print 1"), "\"print 1\"");
  EXPECT_EQ(ask_application("Nobody", "print 1"), std::nullopt);
}

TEST_F(ProcessesTest, OneThatAnswersIsLeftAlone) {
  launch_with("honest");
  open_music();
  ASSERT_TRUE(comes_true([&] { return has_picture(); }));
  for (int second = 0; second < 20; ++second) {
    advance(1);
    ASSERT_TRUE(music()) << "closed after " << second << " seconds";
    // Its messages arrive in order: with this answer, those to all earlier pings have arrived,
    // however little real time a second of the clock has taken.
    ASSERT_EQ(ask_application("Music", "print 1"), "\"print 1\"");
  }
  EXPECT_TRUE(music()->is_alive());
}

TEST_F(ProcessesTest, OneThatHangsInFrontIsClosedAndNamedInTheLog) {
  launch_with("hang");
  open_music();
  ASSERT_TRUE(comes_true([&] { return has_picture(); }));
  advance(ApplicationProcess::kPatience - 1);
  EXPECT_TRUE(music());
  advance(3);
  EXPECT_FALSE(music());
  EXPECT_FALSE(programs_->applications().is_running(kMusic));
  EXPECT_TRUE(log_has("Music does not answer: closed"));
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(ProcessesTest, OneThatHangsOnASteppedClockIsClosedAsWell) {
  launch_with("hang", Time::kStepped);
  open_music();
  EXPECT_FALSE(music());
  EXPECT_TRUE(log_has("Music does not answer: closed"));
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(ProcessesTest, OneThatCrashesFadesToTheHomeScreen) {
  launch_with("crash");
  open_music();
  ASSERT_TRUE(comes_true([&] { return !music(); }));
  EXPECT_TRUE(log_has("Music has ended"));
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
  EXPECT_FALSE(recent_applications().contains(kMusic));
  advance(1);
  EXPECT_EQ(SBUIController::sharedInstance().clickedMenuButton(), NO);
}

TEST_F(ProcessesTest, OneThatEndsProperlyIsForgotten) {
  launch_with("end");
  open_music();
  ASSERT_TRUE(comes_true([&] { return !music(); }));
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(ProcessesTest, OneThatIsOpenedAfterItsEndStartsAgain) {
  launch_with("crash");
  open_music();
  ASSERT_TRUE(comes_true([&] { return log_.count("Music has ended") == 1; }));
  advance(1);
  open_music();
  EXPECT_TRUE(comes_true([&] { return log_.count("Music has ended") == 2; }));
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(ProcessesTest, OneThatSendsInvalidMessagesIsClosed) {
  for (const char* behaviour : {"garbage", "bad-buffer", "bad-size", "no-size"}) {
    launch_with(behaviour);
    open_music();
    ASSERT_TRUE(comes_true([&] { return !music(); })) << behaviour;
    EXPECT_FALSE(programs_->applications().is_running(kMusic));
    EXPECT_TRUE(log_has("Music sends invalid messages: closed")) << behaviour;
    EXPECT_EQ(shown_now(), Shown::HomeScreen);
    end();
  }
}

TEST_F(ProcessesTest, WhatTheUserOfOneMustKnowIsTold) {
  const host::test::ToldUser user;
  launch_with("warn");
  open_music();
  EXPECT_TRUE(comes_true([&] { return !user.words().empty(); }));
  EXPECT_EQ(user.words(), std::vector<std::string>{std::string(kDiskWarning)});
  EXPECT_TRUE(music());
}

TEST_F(ProcessesTest, OneThatHasChangedTheSettingsOfMusicIsHeard) {
  using media_player::MediaService;
  foundation::set_device_root(device);
  media_player::export_media_player();
  media_player::export_media_controller();
  media_player::MediaOptions options;
  options.index_path = device / "index.db";
  options.pace = media::PlayerPace::stepped;
  options.audio_output = "null";
  MediaService::start(options);
  media_player::MusicChoices chosen;
  chosen.repeat = media::Repeat::all;
  ASSERT_TRUE(media_player::write_music_choices(chosen));
  launch_with("choose");
  EXPECT_NE(MediaService::current()->choices(), chosen);
  open_music();
  EXPECT_TRUE(comes_true([&] { return MediaService::current()->choices() == chosen; }));
  MediaService::stop();
  foundation::set_device_root("");
}

TEST_F(ProcessesTest, OneThatFloodsIsReadALittleAtATimeAndThenClosed) {
  launch_with("flood");
  open_music();
  ASSERT_TRUE(comes_true([&] { return has_picture(); }));
  const double began = clock.now();
  std::uint64_t most = 0;
  while (music() && clock.now() < began + 10) {
    const auto before = quartzcore::image_of(music()->picture())->serial();
    advance(RunLoop::kFrame);
    // However fast this machine is, the flood stays ahead of the reader.
    ASSERT_TRUE(comes_true([&] { return !music() || music()->has_more_to_say(); }));
    if (music()) most = std::max(most, quartzcore::image_of(music()->picture())->serial() - before);
  }
  // One or two turns per frame, with one picture each.
  EXPECT_LE(most, 3u);
  EXPECT_GE(clock.now() - began, 1);
  EXPECT_TRUE(log_has("Music floods the phone with messages: closed"));
  EXPECT_FALSE(programs_->applications().is_running(kMusic));
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(ProcessesTest, OneThatFloodsDoesNotDelayTheHomeScreensFrames) {
  launch_with("flood");
  open_music();
  const auto is_ahead = [&] { return music() && music()->has_more_to_say(); };
  ASSERT_TRUE(comes_true(is_ahead));
  CountedScreen screen;
  const process::PhoneScreen phone_screen(loop, screen);
  const auto moving = make_view<UIView>({0, 0, 10, 10});
  moving->setBackgroundColor(UIColor::whiteColor());
  SBUIController::sharedInstance().window().addSubview(*moving);
  UIView::animateWithDuration(0.5, objc::block([&] { moving->setCenter({300, 500}); }));
  CGFloat place = 0;
  for (int frame = 0; frame < 25; ++frame) {
    const int before = screen.frames;
    advance(RunLoop::kFrame);
    ASSERT_TRUE(comes_true(is_ahead)) << frame;
    EXPECT_EQ(screen.frames, before + 1) << frame;
    const CGFloat now = moving->layer().presentationLayer().position().y;
    EXPECT_GT(now, place) << frame;
    place = now;
  }
}

TEST_F(ProcessesTest, OneIsToldHowManyPixelsTheScreenHas) {
  launch_with("honest", Time::kStepped);
  open_music();
  ASSERT_TRUE(music());
  const auto width = [this] { return quartzcore::image_of(music()->picture())->width(); };
  const int of_device = width();
  quartzcore::set_screen_density(0.5);
  adopt_screen_density();
  EXPECT_TRUE(comes_true([&] { return width() == of_device / 2; }));
  advance(1);
  quartzcore::set_screen_density(1);
  adopt_screen_density();
  EXPECT_TRUE(comes_true([&] { return width() == of_device; }));
}

TEST_F(ProcessesTest, OneThatStartsOnASmallScreenIsToldAtOnce) {
  quartzcore::set_screen_density(0.5);
  launch_with("honest", Time::kStepped);
  open_music();
  const auto width = [this] { return quartzcore::image_of(music()->picture())->width(); };
  EXPECT_TRUE(comes_true([&] { return width() == std::lround(current_device().width); }));
  quartzcore::set_screen_density(1);
}

TEST_F(ProcessesTest, OneCannotShrinkTheSharedMemory) {
  launch_with("shrink", Time::kStepped);
  open_music();
  ASSERT_TRUE(music());
  EXPECT_EQ(first_pixel(), kColor);
  advance(10);
  EXPECT_TRUE(music()->is_alive());
}

TEST_F(ProcessesTest, ThrowingItAwayInTheSwitcherEndsIt) {
  launch_with("honest", Time::kStepped);
  open_music();
  press_home();
  advance(1);
  recent_applications().close(kMusic);
  EXPECT_FALSE(programs_->applications().is_running(kMusic));
  EXPECT_FALSE(music());
}

}  // namespace
