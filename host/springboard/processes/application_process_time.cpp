#include <algorithm>

#include "host/springboard/processes/application_process.h"

// How an application keeps up with the home screen's clock, and how the home screen finds out that
// it does not.

namespace host::springboard {

using namespace application;

namespace {

/// An application that says it is due at once, for ever, must not stop the clock.
constexpr double kLeastStep = 1e-3;

}  // namespace

// Whatever else happens at this moment goes with the same message.
void ApplicationProcess::catch_up_soon() {
  if (std::exchange(catches_up_soon_, true)) return;
  loop_.perform([this, life = std::weak_ptr<void>(life_)] {
    if (!life.expired() && catches_up_soon_) catch_up();
  });
}

// One question and one answer for all that the application does until it next has something to do.
void ApplicationProcess::catch_up() {
  catches_up_soon_ = false;
  const double now = loop_.now();
  reached_.reset();
  write(TimeIs{now});
  const auto has_reached = [this, now] { return reached_ && *reached_ >= now; };
  if (!read_until(has_reached)) return;
  const double due = std::max(next_due_, now + kLeastStep);
  // Whoever is in front is asked even when nothing is due: it may hang.
  wait_for_due(is_in_front_ ? std::min(due, now + kAskEvery) : due);
}

void ApplicationProcess::wait_for_due(double due) {
  if (due_) loop_.remove_timer(*due_);
  due_ = loop_.add_timer(due, 0, [this] {
    due_.reset();
    catch_up();
  });
}

void ApplicationProcess::watch_over() {
  if (questions_) loop_.remove_timer(*questions_);
  questions_.reset();
  // On a stepped clock every step is a question.
  if (time_ == Time::Stepped || !is_in_front_ || !is_alive()) return;
  asked_at_ = loop_.now();
  questions_ = loop_.add_timer(loop_.now() + kAskEvery, kAskEvery, [this] { ask_for_life(); });
}

void ApplicationProcess::ask_for_life() {
  const double now = loop_.now();
  if (answered_ < asked_) {
    if (now - asked_at_ >= patience()) end(ProcessEnd::NoAnswer);
    return;
  }
  asked_at_ = now;
  write(Ping{++asked_});
}

}  // namespace host::springboard
