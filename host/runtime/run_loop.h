#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "host/runtime/clock.h"

namespace host {

/// The main run loop of a process: timers on the clock, work for the next turn, frames of the
/// screen and file descriptors. One thread, one loop. Each turn has its own autorelease pool.
class RunLoop {
 public:
  using Work = std::function<void()>;
  using Id = std::uint64_t;

  static constexpr double kFrame = 1.0 / 60.0;

  explicit RunLoop(Clock& clock) : clock_(clock) {}
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;

  /// The loop of this process, created by `main` or by a test. There must be one.
  static RunLoop& main();
  static bool has_main();
  /// Makes `loop` the process's loop; nullptr removes it.
  static void set_main(RunLoop* loop);

  const Clock& clock() const { return clock_; }
  double now() const { return clock_.now(); }

  /// Runs `work` once in the next turn, in the order of the calls. Loop thread only.
  void perform(Work work);

  /// Runs `work` at `due` (clock seconds) and, with an `interval` above 0, repeatedly after it. The
  /// next due time is relative to the last due time; ticks already past are skipped. A loop that
  /// sleeps on the real clock may run it as much as `tolerance` seconds late, together with others.
  Id add_timer(double due, double interval, Work work, double tolerance = 0);
  void remove_timer(Id timer);

  /// Runs `work` when the descriptor is readable (real clock: while waiting; stepped: each turn).
  Id watch(int descriptor, Work work);
  /// Whether `work` also runs when the descriptor is writable. Only while there is something left
  /// to write: a descriptor nearly always is, and the loop would not sleep.
  void wait_to_write(Id watch, bool waits);
  void unwatch(Id watch);

  /// Runs `work` with the frame's time at every frame of the screen (60 per second of the clock)
  /// until removed. A loop without observers has no frames.
  Id add_frame_observer(std::function<void(double frame_time)> work);
  void remove_frame_observer(Id observer);
  bool wants_frames() const { return !frame_observers_.empty(); }
  /// The number of the frame on the screen's grid that the clock is in.
  std::int64_t frame_number() const;
  /// At a turn's end: true when the turn included a frame of the screen.
  bool turn_has_frame() const { return turn_has_frame_; }

  /// Runs `work` at the end of every turn in which anything ran, before the loop sleeps. Layers are
  /// laid out and committed there. Observers run in order of `order`.
  Id add_turn_observer(int order, Work work);
  void remove_turn_observer(Id observer);

  /// The clock time of the next timer or frame; infinity when there is none.
  double next_due() const;
  /// Until when a loop may sleep: one of those times, up to which the timers before it may be late.
  double next_wake() const;

  /// Stepped clock: moves `clock` to `time` and runs everything due until then at its due time.
  void advance_to(SteppedClock& clock, double time);
  /// Runs everything that is ready, without waiting: work of the next turn, due timers, ready
  /// descriptors.
  void run_ready();
  /// Real clock: runs until `stop`.
  void run();
  void stop() { running_ = false; }

 private:
  struct Timer {
    Id id;
    double due;
    double interval;
    Work work;
    double tolerance;
  };
  struct Watch {
    Id id;
    int descriptor;
    Work work;
    bool waits_to_write = false;
  };
  struct FrameObserver {
    Id id;
    std::function<void(double)> work;
  };
  struct TurnObserver {
    Id id;
    int order;
    Work work;
  };

  bool run_work();
  bool run_due_timers();
  bool run_due_frame();
  bool run_ready_descriptors(int timeout_milliseconds);
  bool turn(int timeout_milliseconds);
  void end_turn();

  Clock& clock_;
  bool running_ = false;
  bool turn_has_frame_ = false;
  Id last_id_ = 0;
  double next_frame_ = 0;
  std::vector<Work> work_;
  std::vector<Timer> timers_;
  std::vector<Watch> watches_;
  std::vector<FrameObserver> frame_observers_;
  std::vector<TurnObserver> turn_observers_;
};

}  // namespace host
