#include "host/uikit/scroll_physics/axis_glide.h"

#include <algorithm>
#include <cmath>

namespace host::uikit {
namespace {

/// Only a fling through both edges and back would need more, and no finger is that fast.
constexpr std::size_t kMostPhases = 4;

}  // namespace

AxisGlide AxisGlide::free(double position, double velocity, OffsetRange range, double rate,
                          Edges edges) {
  AxisGlide glide(position);
  if (range.contains(position)) {
    glide.add_free(position, velocity, range, rate, edges);
  } else {
    glide.add_spring_to_edge(position, velocity, range.clamp(position), range, rate, edges);
  }
  return glide;
}

AxisGlide AxisGlide::to(double position, double target, OffsetRange range, double rate) {
  AxisGlide glide(position);
  if (range.contains(position)) {
    const auto motion = Deceleration::toward(position, target, rate);
    glide.add(motion, motion.duration());
  } else {
    const Spring spring{target, position - target, 0, Spring::kBounceFrequency};
    glide.add(spring, spring.duration());
  }
  glide.end_ = target;
  return glide;
}

AxisGlide AxisGlide::to_page(double position, double velocity, double target) {
  AxisGlide glide(position);
  const double displacement = position - target;
  // At any higher speed the page would overshoot its target and come back.
  const double fastest = Spring::kPageFrequency * std::abs(displacement);
  const double tamed = std::clamp(velocity, -fastest, fastest);
  const Spring spring{target, displacement, tamed, Spring::kPageFrequency};
  glide.add(spring, spring.duration());
  glide.end_ = target;
  return glide;
}

void AxisGlide::add(const Deceleration& motion, double lasting) {
  if (lasting <= 0) return;
  phases_.push_back({duration_, motion});
  duration_ += lasting;
  end_ = motion.position(lasting);
}

void AxisGlide::add(const Spring& motion, double lasting) {
  if (lasting <= 0) return;
  phases_.push_back({duration_, motion});
  duration_ += lasting;
  end_ = motion.target;
}

void AxisGlide::add_free(double position, double velocity, OffsetRange range, double rate,
                         Edges edges) {
  const Deceleration motion{position, velocity, rate};
  if (range.contains(motion.end())) {
    add(motion, motion.duration());
    return;
  }
  const double edge = velocity > 0 ? range.maximum : range.minimum;
  const double arrival = motion.time_at(edge);
  add(motion, arrival);
  end_ = edge;
  if (edges == Edges::Bounce)
    add_spring_to_edge(edge, motion.velocity_at(std::max(arrival, 0.0)), edge, range, rate, edges);
}

void AxisGlide::add_spring_to_edge(double position, double velocity, double edge, OffsetRange range,
                                   double rate, Edges edges) {
  const Spring spring{edge, position - edge, velocity, Spring::kBounceFrequency};
  const double crossing = spring.crossing_time();
  if (crossing < 0 || phases_.size() >= kMostPhases) {
    add(spring, spring.duration());
    end_ = edge;
    return;
  }
  // Thrown back inside fast enough, the content passes the edge and glides on freely.
  add(spring, crossing);
  add_free(edge, spring.velocity_at(crossing), range, rate, edges);
}

const AxisGlide::Phase* AxisGlide::phase_at(double time) const {
  const auto later = std::find_if(phases_.begin(), phases_.end(),
                                  [&](const Phase& phase) { return phase.begin > time; });
  return later == phases_.begin() ? nullptr : &*std::prev(later);
}

double AxisGlide::position(double time) const {
  if (time >= duration_) return end_;
  const Phase* phase = phase_at(time);
  if (!phase) return end_;
  return std::visit([&](const auto& motion) { return motion.position(time - phase->begin); },
                    phase->motion);
}

double AxisGlide::velocity(double time) const {
  if (time >= duration_) return 0;
  const Phase* phase = phase_at(time);
  if (!phase) return 0;
  return std::visit([&](const auto& motion) { return motion.velocity_at(time - phase->begin); },
                    phase->motion);
}

}  // namespace host::uikit
