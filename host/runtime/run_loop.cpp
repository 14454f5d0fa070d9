#include "host/runtime/run_loop.h"

#include <poll.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "objc/autorelease_pool.h"

namespace host {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();
// In seconds. Sums of tenths of a second meet their due time only up to rounding.
constexpr double kTimeTolerance = 1e-9;

RunLoop* main_loop = nullptr;

template <class Entries>
void remove_entry(Entries& entries, RunLoop::Id id) {
  std::erase_if(entries, [id](const auto& entry) { return entry.id == id; });
}

template <class Entries>
auto* find_entry(Entries& entries, RunLoop::Id id) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [id](const auto& entry) { return entry.id == id; });
  return found == entries.end() ? nullptr : &*found;
}

template <class Entries>
std::vector<RunLoop::Id> ids_of(const Entries& entries) {
  std::vector<RunLoop::Id> ids;
  ids.reserve(entries.size());
  for (const auto& entry : entries)
    ids.push_back(entry.id);
  return ids;
}

short wanted_events(bool waits_to_write) {
  return waits_to_write ? POLLIN | POLLOUT : POLLIN;
}

}  // namespace

RunLoop& RunLoop::main() {
  return *main_loop;
}
bool RunLoop::has_main() {
  return main_loop != nullptr;
}
void RunLoop::set_main(RunLoop* loop) {
  main_loop = loop;
}

void RunLoop::perform(Work work) {
  work_.push_back(std::move(work));
}

RunLoop::Id RunLoop::add_timer(double due, double interval, Work work, double tolerance) {
  timers_.push_back({++last_id_, due, interval, std::move(work), tolerance});
  return last_id_;
}

void RunLoop::remove_timer(Id timer) {
  remove_entry(timers_, timer);
}

RunLoop::Id RunLoop::watch(int descriptor, Work work) {
  watches_.push_back({++last_id_, descriptor, std::move(work)});
  return last_id_;
}

void RunLoop::wait_to_write(Id watch, bool waits) {
  if (Watch* known = find_entry(watches_, watch)) known->waits_to_write = waits;
}

void RunLoop::unwatch(Id watch) {
  remove_entry(watches_, watch);
}

RunLoop::Id RunLoop::add_frame_observer(std::function<void(double)> work) {
  if (frame_observers_.empty()) {
    // The screen's frames are on one fixed grid, whenever they are requested.
    next_frame_ = static_cast<double>(frame_number() + 1) * kFrame;
  }
  frame_observers_.push_back({++last_id_, std::move(work)});
  return last_id_;
}

void RunLoop::remove_frame_observer(Id observer) {
  remove_entry(frame_observers_, observer);
}

std::int64_t RunLoop::frame_number() const {
  return static_cast<std::int64_t>(std::floor(now() / kFrame + kTimeTolerance));
}

RunLoop::Id RunLoop::add_turn_observer(int order, Work work) {
  turn_observers_.push_back({++last_id_, order, std::move(work)});
  std::stable_sort(turn_observers_.begin(), turn_observers_.end(),
                   [](const auto& a, const auto& b) { return a.order < b.order; });
  return last_id_;
}

void RunLoop::remove_turn_observer(Id observer) {
  remove_entry(turn_observers_, observer);
}

double RunLoop::next_due() const {
  double due = frame_observers_.empty() ? kNever : next_frame_;
  for (const Timer& timer : timers_)
    due = std::min(due, timer.due);
  return due;
}

double RunLoop::next_wake() const {
  double latest = frame_observers_.empty() ? kNever : next_frame_;
  for (const Timer& timer : timers_)
    latest = std::min(latest, timer.due + timer.tolerance);
  // Nothing is late without reason: the last of those that come until then decides.
  double wake = next_due();
  for (const Timer& timer : timers_) {
    if (timer.due <= latest) wake = std::max(wake, timer.due);
  }
  if (!frame_observers_.empty() && next_frame_ <= latest) wake = std::max(wake, next_frame_);
  return wake;
}

bool RunLoop::run_work() {
  if (work_.empty()) return false;
  // Work added by this work belongs to the next turn.
  std::vector<Work> ready;
  ready.swap(work_);
  for (const Work& work : ready)
    work();
  return true;
}

bool RunLoop::run_due_timers() {
  bool ran = false;
  std::vector<std::pair<double, Id>> due;
  for (const Timer& timer : timers_) {
    if (timer.due <= now() + kTimeTolerance) due.emplace_back(timer.due, timer.id);
  }
  std::stable_sort(due.begin(), due.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& [time, id] : due) {
    Timer* timer = find_entry(timers_, id);
    if (!timer) continue;
    const Work work = timer->work;
    if (timer->interval > 0) {
      const double missed = std::floor((now() + kTimeTolerance - timer->due) / timer->interval);
      timer->due += (missed + 1) * timer->interval;
    } else {
      remove_timer(id);
    }
    work();
    ran = true;
  }
  return ran;
}

bool RunLoop::run_due_frame() {
  if (frame_observers_.empty() || next_frame_ > now() + kTimeTolerance) return false;
  const double frame_time = next_frame_;
  const double missed = std::floor((now() + kTimeTolerance - frame_time) / kFrame);
  next_frame_ = frame_time + (missed + 1) * kFrame;
  for (const Id id : ids_of(frame_observers_)) {
    if (FrameObserver* observer = find_entry(frame_observers_, id)) {
      const auto work = observer->work;
      work(now());
    }
  }
  return true;
}

bool RunLoop::run_ready_descriptors(int timeout_milliseconds) {
  std::vector<pollfd> polled;
  for (const Watch& watch : watches_)
    polled.push_back({watch.descriptor, wanted_events(watch.waits_to_write), 0});
  if (polled.empty() && timeout_milliseconds == 0) return false;
  if (poll(polled.data(), polled.size(), timeout_milliseconds) <= 0) return false;
  const std::vector<Id> ids = ids_of(watches_);
  bool ran = false;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    if (polled[i].revents == 0) continue;
    if (Watch* watch = find_entry(watches_, ids[i])) {
      const Work work = watch->work;
      work();
      ran = true;
    }
  }
  return ran;
}

void RunLoop::end_turn() {
  for (const Id id : ids_of(turn_observers_)) {
    if (TurnObserver* observer = find_entry(turn_observers_, id)) {
      const Work work = observer->work;
      work();
    }
  }
}

bool RunLoop::turn(int timeout_milliseconds) {
  objc::AutoreleasePool pool;
  bool any = run_ready_descriptors(timeout_milliseconds);
  any |= run_work();
  any |= run_due_timers();
  turn_has_frame_ = run_due_frame();
  any |= turn_has_frame_;
  if (any) end_turn();
  return any;
}

void RunLoop::run_ready() {
  while (turn(0)) {
  }
}

void RunLoop::advance_to(SteppedClock& clock, double time) {
  // Events between two turns (a touch, a console line) are committed before time moves.
  {
    objc::AutoreleasePool pool;
    turn_has_frame_ = false;
    end_turn();
  }
  run_ready();
  for (double due = next_due(); due <= time + kTimeTolerance; due = next_due()) {
    clock.move_to(due);
    run_ready();
  }
  clock.move_to(time);
}

void RunLoop::run() {
  running_ = true;
  while (running_) {
    const double wait = work_.empty() ? next_wake() - now() : 0;
    const int timeout =
        wait == kNever ? -1 : static_cast<int>(std::ceil(std::max(wait, 0.0) * 1e3));
    turn(timeout);
  }
}

}  // namespace host
