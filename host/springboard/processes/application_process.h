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

/// One running application, as the home screen sees it: what it draws and says. Nothing that it
/// does, or fails to do, holds up the home screen for longer than the patience below.
class ApplicationProcess {
 public:
  /// Seconds that an application may take to answer.
  static constexpr double kPatience = 5;
  /// The same while it comes to life.
  static constexpr double kFirstPatience = 30;
  /// Between two questions whether it still answers.
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
  /// Has it said more than is read in one turn?
  bool has_more_to_say() const { return pause_.has_value(); }
  /// What it drew last; nil before the first frame.
  CGImageRef picture() const;

  void set_in_front(bool is_in_front);
  bool is_in_front() const { return is_in_front_; }
  void send(const application::ToApplication& message);
  /// Has a console's line carried out there. Nothing when it gave no answer.
  std::optional<std::string> ask(const std::string& line);

 private:
  bool greet();
  void write(const application::ToApplication& message);

  // Reading, a bounded amount at a time.
  void watch();
  void stop_watching();
  void read();
  void read_on_next_frame();
  /// Waits for what the application owes us. False when it has ended instead.
  bool read_until(const std::function<bool()>& came);

  void take(const application::ToHome& message);
  void take(const application::NewFrame& frame);

  // Pictures, of which the screen shows one a frame.
  void new_frame_came();
  void screen_frame();
  void show_new_frame();
  void take(const application::ReachedTime& reached);
  void take(const application::ConsoleAnswer& answer);
  void take(const application::Pong& pong);
  void take(const application::Closing&) { end(ProcessEnd::Ended); }
  void take(const application::SteerPlayer& command);

  double patience() const { return has_answered_ ? kPatience : kFirstPatience; }

  // The stepped clock.
  void catch_up_soon();
  void catch_up();
  void wait_for_due(double due);

  // The real one.
  void watch_over();
  void ask_for_life();

  void end(ProcessEnd reason);

  RunLoop& loop_;
  application::Channel channel_;
  const Time time_;
  Events events_;
  application::MessageReader<application::ToHome> reader_;
  MessageBudget budget_;
  std::shared_ptr<const application::SharedSurface> surface_;
  objc::Ref<quartzcore::CGImageObject> picture_;
  std::optional<int> new_frame_;
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
  std::optional<std::string> answer_;
  std::uint64_t asked_ = 0;
  std::uint64_t answered_ = 0;
  double asked_at_ = 0;
  /// Ends with this object: work of the next turn may outlast it.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
