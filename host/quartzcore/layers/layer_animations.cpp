#include "host/quartzcore/layers/layer_animations.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "host/quartzcore/animations/animation_delegate.h"
#include "host/quartzcore/animations/transaction.h"

namespace host::quartzcore {
namespace {

// Animations of these keys change how a layer looks, not where it is.
constexpr std::array<std::string_view, 5> kUnmovingKeys = {
    "opacity", "backgroundColor", "borderColor", "borderWidth", "cornerRadius"};

}  // namespace

LayerAnimations::~LayerAnimations() {
  for (auto& animation : animations_)
    stop_animation(animation, NO, Notify::NextTurn);
}

RunningAnimation* LayerAnimations::find(std::string_view key) {
  const auto found = std::find_if(animations_.begin(), animations_.end(),
                                  [&](const auto& animation) { return animation.key == key; });
  return found == animations_.end() ? nullptr : &*found;
}

void LayerAnimations::add(RunningAnimation&& animation) {
  animation.group = current_group();
  animations_.push_back(std::move(animation));
}

bool LayerAnimations::remove(std::string_view key, double now) {
  for (auto& animation : animations_) {
    if (animation.key == key) stop_animation(animation, animation.is_over(now), Notify::NextTurn);
  }
  return std::erase_if(animations_, [&](const auto& animation) { return animation.key == key; }) >
         0;
}

void LayerAnimations::remove_all(double now) {
  for (auto& animation : animations_)
    stop_animation(animation, animation.is_over(now), Notify::NextTurn);
  animations_.clear();
}

bool LayerAnimations::start(double now, std::vector<RunningAnimation>& observed) {
  bool waits = false;
  for (RunningAnimation& animation : animations_) {
    if (animation.has_started) continue;
    if (animation.begin > now) {
      waits = true;
      continue;
    }
    animation.has_started = true;
    if (observes_start(animation)) observed.push_back(animation);
  }
  return waits;
}

std::vector<RunningAnimation> LayerAnimations::take_ended(double now) {
  std::vector<RunningAnimation> ended;
  for (std::size_t i = 0; i < animations_.size();) {
    RunningAnimation& animation = animations_[i];
    if (animation.has_stopped || !animation.is_over(now)) {
      ++i;
      continue;
    }
    if (animation.removed_on_completion) {
      ended.push_back(std::move(animation));
      animations_.erase(animations_.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      ended.push_back(animation);
      animation.has_stopped = true;
      animation.group.reset();
      ++i;
    }
  }
  return ended;
}

bool LayerAnimations::wants_frames() const {
  return std::any_of(animations_.begin(), animations_.end(),
                     [](const auto& animation) { return !animation.has_stopped; });
}

double LayerAnimations::next_end() const {
  double end = std::numeric_limits<double>::infinity();
  for (const RunningAnimation& animation : animations_) {
    if (!animation.has_stopped) end = std::min(end, animation.end());
  }
  return end;
}

bool LayerAnimations::is_scaling(double now) const {
  return std::any_of(animations_.begin(), animations_.end(), [now](const auto& animation) {
    return !animation.is_over(now) && (animation.key_path.starts_with("bounds") ||
                                       animation.key_path.starts_with("transform"));
  });
}

bool LayerAnimations::may_move() const {
  return std::any_of(animations_.begin(), animations_.end(), &LayerAnimations::moves);
}

bool LayerAnimations::moves(const RunningAnimation& animation) {
  return std::find(kUnmovingKeys.begin(), kUnmovingKeys.end(), animation.key_path) ==
         kUnmovingKeys.end();
}

}  // namespace host::quartzcore
