#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "host/application/surface/shared_surface.h"
#include "host/application/wire/channel.h"
#include "host/application/wire/message_reader.h"
#include "host/quartzcore/drawing/image.h"
#include "host/runtime/run_loop.h"
#include "host/springboard/processes/message_budget.h"
#include "objc/ref.h"

namespace host::springboard {

/// Why an application is no longer connected.
enum class ProcessEnd { Ended, NoAnswer, Flood, Garbage };

/// The home screen's end of one running application: its frames and its messages. Nothing that the
/// application does, or fails to do, blocks the home screen for longer than the timeouts below.
class ApplicationProcess {
 public:
  /// The time in seconds that an application may take to answer.
  static constexpr double kPatience = 5;
  /// The same while it starts up.
  static constexpr double kFirstPatience = 30;
  /// The interval in seconds between two pings.
  static constexpr double kAskEvery = 1;

  struct Events {
    std::function<void()> frame_came;
    std::function<void(ProcessEnd)> ended;
    std::function<void(const application::SteerPlayer&)> steers;
  };

  enum class Time { Real, Stepped };

  ApplicationProcess(application::Channel channel, Time time, Events events);
  ~ApplicationProcess();
  ApplicationProcess(const ApplicationProcess&) = delete;
  ApplicationProcess& operator=(const ApplicationProcess&) = delete;

  bool is_alive() const { return static_cast<bool>(channel_); }
  /// True when it has sent more than is read in one turn of the run loop.
  bool has_more_to_say() const { return pause_.has_value(); }
  /// The latest frame; null before the first.
  CGImageRef picture() const;

  /// Has it draw with as many pixels as the screen has now.
  void adopt_screen_density();
  void set_in_front(bool is_in_front);
  bool is_in_front() const { return is_in_front_; }
  void send(const application::ToApplication& message);
  /// Where text goes that is typed into the application; nothing while no field of it takes text.
  std::optional<CGRect> caret() const { return caret_; }
  /// Runs a console line in the application and returns its answer; nothing when it gave none.
  std::optional<std::string> ask(const std::string& line);

 private:
  bool greet();
  void write(const application::ToApplication& message);

  // Reading, in bounded amounts.
  void watch();
  void stop_watching();
  void read();
  void read_on_next_frame();
  /// Blocks until `came` returns true. Returns false when the application has ended instead.
  bool read_until(const std::function<bool()>& came);

  void take(const application::ToHome& message);
  void take(const application::NewFrame& frame);

  // Pictures: the screen shows at most one per frame.
  void new_frame_came();
  void screen_frame();
  void show_new_frame();
  void take(const application::ReachedTime& reached);
  void take(const application::ConsoleAnswer& answer);
  void take(const application::Pong& pong);
  void take(const application::Closing&) { end(ProcessEnd::Ended); }
  void take(const application::SteerPlayer& command);
  void take(const application::TextInputIs& input);
  void take(const application::UserWarning& warning);

  double patience() const { return has_answered_ ? kPatience : kFirstPatience; }

  // The stepped clock.
  void catch_up_soon();
  void catch_up();
  void wait_for_due(double due);

  // The real clock.
  void watch_liveness();
  void send_ping();

  void end(ProcessEnd reason);

  RunLoop& loop_;
  application::Channel channel_;
  const Time time_;
  Events events_;
  application::MessageReader<application::ToHome> reader_;
  MessageBudget budget_;
  std::shared_ptr<const application::SharedSurface> surface_;
  objc::Ref<quartzcore::CGImageObject> picture_;
  std::optional<application::NewFrame> new_frame_;
  std::optional<RunLoop::Id> screen_frames_;
  int quiet_frames_ = 0;
  std::optional<RunLoop::Id> watch_;
  std::optional<RunLoop::Id> pause_;
  std::optional<RunLoop::Id> due_;
  std::optional<RunLoop::Id> questions_;
  bool is_in_front_ = false;
  bool catches_up_soon_ = false;
  bool is_reading_ = false;
  std::optional<double> reached_;
  double next_due_ = 0;
  bool has_answered_ = false;
  std::optional<CGRect> caret_;
  std::optional<std::string> answer_;
  std::uint64_t asked_ = 0;
  std::uint64_t answered_ = 0;
  double asked_at_ = 0;
  /// Expires with this object, which work queued for the next turn may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
