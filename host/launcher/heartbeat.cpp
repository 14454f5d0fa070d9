#include "host/launcher/heartbeat.h"

#include <algorithm>

namespace host::launcher {
namespace {

/// A look may come this many pauses late before the time in between no longer counts.
constexpr double kLateness = 1.5;

}  // namespace

void Heartbeat::answered(double now) {
  last_look_ = now;
  waited_ = 0;
  has_asked_ = false;
}

Heartbeat::Finding Heartbeat::look(double now) {
  if (!is_beating()) return Finding::Nothing;
  waited_ += std::min(now - *last_look_, kLateness * longest_pause());
  last_look_ = now;
  if (has_asked_) return waited_ < patience() ? Finding::Nothing : Finding::IsHung;
  if (waited_ < longest_pause()) return Finding::Nothing;
  waited_ = 0;
  has_asked_ = true;
  return Finding::ShouldAsk;
}

}  // namespace host::launcher
