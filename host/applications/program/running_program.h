#pragma once

#include <memory>
#include <optional>

#include "host/applications/program/home_link.h"
#include "host/applications/program/own_phone.h"
#include "host/applications/program/surface_screen.h"
#include "host/console/session.h"
#include "host/process/phone_screen.h"
#include "host/runtime/run_loop.h"
#include "host/runtime/user_warnings.h"
#include "host/uikit/touch/touch_input.h"

namespace host::application {

/// A running application: carries out the home screen's messages, and draws for it.
class RunningProgram {
 public:
  /// `stepped` is the clock if the home screen steps it; otherwise it is nullptr.
  RunningProgram(HomeLink& link, RunLoop& loop, SteppedClock* stepped,
                 const console::Globals& globals);
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  void take(const Hello& hello);
  /// Does not return.
  void serve();

 private:
  void watch();
  void handle_messages();
  void take(const ScreenPixels& pixels);
  void take(const FingerChange& change);
  void take(const WheelTurn& turn);
  void take(const FocusEnds&);
  void take(const TypedText& typed);
  void take(const ComposedText& composed);
  void take(const PressedKey& pressed);
  void take(const Visibility& visibility);
  void take(const TimeIs& reached);
  void take(const ConsoleLine& line);
  void take(const Ping& ping) { link_.send(Pong{ping.number}); }
  void take(const FrameTaken&) { screen_.frame_taken(); }
  void take(const PlaybackIs& playback);

  double own_time(double home_time) const { return home_time + ahead_; }
  void move_to(double own_time);
  void finish_frame();
  void report_text_input();

  HomeLink& link_;
  RunLoop& loop_;
  SteppedClock* stepped_;
  SurfaceScreen screen_;
  process::PhoneScreen phone_screen_;
  uikit::TouchInput touches_;
  OwnPhone phone_;
  console::Session session_;
  std::optional<RunLoop::Id> message_watch_;
  std::optional<RunLoop::Id> home_watch_;
  RunLoop::Id turns_;
  UserWarnings warnings_;
  /// The caret that the home screen knows of.
  std::optional<CGRect> reported_caret_;
  /// How far this clock is ahead of the home screen's, which starts again with a restart.
  double ahead_ = 0;
};

}  // namespace host::application
