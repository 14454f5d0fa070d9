#include <algorithm>

#include "host/springboard/processes/application_process.h"

// Keeps an application in step with the home screen's clock, and detects one that hangs.

namespace host::springboard {

using namespace application;

namespace {

/// In seconds. An application that always reports that it is due at once must not stop the clock.
constexpr double kLeastStep = 1e-3;

}  // namespace

// Deferred, because one message covers everything that happens at this moment.
void ApplicationProcess::catch_up_soon() {
  if (std::exchange(catches_up_soon_, true)) return;
  loop_.perform([this, life = std::weak_ptr<void>(life_)] {
    if (!life.expired() && catches_up_soon_) catch_up();
  });
}

// One request and one answer cover everything the application does until it is next due.
void ApplicationProcess::catch_up() {
  catches_up_soon_ = false;
  const double now = loop_.now();
  reached_.reset();
  write(TimeIs{now});
  const auto has_reached = [this, now] { return reached_ && *reached_ >= now; };
  if (!read_until(has_reached)) return;
  const double due = std::max(next_due_, now + kLeastStep);
  // The application in front is asked even when nothing is due: it may hang.
  wait_for_due(is_in_front_ ? std::min(due, now + kAskEvery) : due);
}

void ApplicationProcess::wait_for_due(double due) {
  if (due_) loop_.remove_timer(*due_);
  due_ = loop_.add_timer(due, 0, [this] {
    due_.reset();
    catch_up();
  });
}

void ApplicationProcess::watch_liveness() {
  if (questions_) loop_.remove_timer(*questions_);
  questions_.reset();
  // On a stepped clock every step already asks for an answer.
  if (time_ == Time::Stepped || !is_in_front_ || !is_alive()) return;
  asked_at_ = loop_.now();
  questions_ = loop_.add_timer(loop_.now() + kAskEvery, kAskEvery, [this] { send_ping(); });
}

void ApplicationProcess::send_ping() {
  const double now = loop_.now();
  if (answered_ < asked_) {
    if (now - asked_at_ >= patience()) end(ProcessEnd::NoAnswer);
    return;
  }
  asked_at_ = now;
  write(Ping{++asked_});
}

}  // namespace host::springboard
