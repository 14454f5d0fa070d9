#include "host/quartzcore/layer_service.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "host/quartzcore/animations/animation_delegate.h"
#include "host/quartzcore/animations/transaction.h"
#include "host/quartzcore/backing_stores.h"
#include "host/quartzcore/layer.h"
#include "host/runtime/log.h"

namespace host::quartzcore {
namespace {

// A layout that marks itself anew each time would hold the screen for ever.
constexpr int kMostRounds = 100;

LayerService* service = nullptr;
std::uint64_t changes = 1;
// Layers leave these when they end, so nothing here is retained.
std::vector<CALayer> dirty;
std::vector<CALayer> animated;
// Thousands of layers may be animated; they are looked through only when something may be new.
bool starts_wait = false;
bool ends_are_known = true;

std::vector<objc::Ref<CALayer>> retained(const std::vector<CALayer>& layers) {
  std::vector<objc::Ref<CALayer>> result;
  for (CALayer layer : layers)
    result.push_back(objc::Ref<CALayer>::retain(layer));
  return result;
}

void announce_starts() {
  if (!std::exchange(starts_wait, false)) return;
  std::vector<RunningAnimation> heard;
  for (CALayer layer : animated)
    starts_wait |= objc::state_of<Layer>(layer).start_animations(heard);
  tell_starts(heard);
}

void flush(objc::Object) {
  flush_layers();
}

}  // namespace

LayerService::LayerService(RunLoop& loop)
    : loop_(loop), turn_observer_(loop.add_turn_observer(kTurnOrder, [] { flush_layers(); })) {
  service = this;
  ends_are_known = false;
  update_frames();
}

LayerService::~LayerService() {
  loop_.remove_turn_observer(turn_observer_);
  if (frame_observer_) loop_.remove_frame_observer(frame_observer_);
  if (end_timer_) loop_.remove_timer(end_timer_);
  service = nullptr;
  // An animation keeps its listener, which keeps the layer: nobody is there to end it any more.
  for (const auto& layer : retained(std::exchange(animated, {}))) {
    objc::state_of<Layer>(layer.get()).set_in_animated_list(false);
    layer->removeAllAnimations();
  }
}

LayerService* LayerService::current() {
  return service;
}

void LayerService::update_frames() {
  if (!animated.empty() && !frame_observer_) {
    frame_observer_ = loop_.add_frame_observer([this](double) { advance_animations(); });
  } else if (animated.empty() && frame_observer_) {
    loop_.remove_frame_observer(frame_observer_);
    frame_observer_ = 0;
  }
}

void LayerService::wait_for_next_end() {
  if (std::exchange(ends_are_known, true)) return;
  double end = std::numeric_limits<double>::infinity();
  std::erase_if(animated, [&end](CALayer handle) {
    Layer& layer = objc::state_of<Layer>(handle);
    end = std::min(end, layer.next_animation_end());
    if (layer.wants_frames()) return false;
    layer.set_in_animated_list(false);
    return true;
  });
  update_frames();
  if (end_timer_ && end == end_time_) return;
  if (end_timer_) loop_.remove_timer(std::exchange(end_timer_, 0));
  end_time_ = end;
  if (end == std::numeric_limits<double>::infinity()) return;
  end_timer_ = loop_.add_timer(end, 0, [this] {
    end_timer_ = 0;
    ends_are_known = false;
    advance_animations();
  });
}

bool LayerService::has_news() const {
  return starts_wait || !ends_are_known || loop_.now() + kTimeTolerance >= end_time_;
}

void LayerService::advance_animations() {
  if (!has_news()) return;
  ends_are_known = false;
  for (const auto& layer : retained(animated))
    objc::state_of<Layer>(layer.get()).advance_animations(loop_.now());
  wait_for_next_end();
}

void flush_layers() {
  for (int round = 0; !dirty.empty(); ++round) {
    if (round == kMostRounds) {
      spdlog::warn("layout did not come to rest: {} layers are still marked", dirty.size());
      break;
    }
    const auto marked = retained(dirty);
    dirty.clear();
    for (const auto& layer : marked)
      objc::state_of<Layer>(layer.get()).leave_dirty_list();
    for (const auto& layer : marked)
      layer->layoutIfNeeded();
    for (const auto& layer : marked) {
      if (!layer->needsDisplay() || objc::state_of<Layer>(layer.get()).is_clipped_away()) continue;
      layer->displayIfNeeded();
    }
  }
  trim_backing_stores();
  announce_starts();
  if (service) service->wait_for_next_end();
  end_implicit_transaction();
}

std::uint64_t layer_changes() {
  return changes;
}
void note_layer_change() {
  ++changes;
}

void mark_layer_dirty(CALayer layer) {
  dirty.push_back(layer);
}

void forget_dirty_layer(CALayer layer) {
  std::erase(dirty, layer);
}
void forget_animated_layer(CALayer layer) {
  note_animations_changed();
  std::erase(animated, layer);
  if (service) service->update_frames();
}

void note_animations_changed() {
  starts_wait = true;
  ends_are_known = false;
}

void note_animated_layer(CALayer handle) {
  note_animations_changed();
  Layer& layer = objc::state_of<Layer>(handle);
  if (layer.is_in_animated_list()) return;
  layer.set_in_animated_list(true);
  animated.push_back(handle);
  if (service) service->update_frames();
}

bool any_layer_animated() {
  return !animated.empty();
}

const std::vector<CALayer>& animated_layers() {
  return animated;
}

void export_layer_flush() {
  const objc::Object transactions{reinterpret_cast<objc::Id>(CATransaction::cls())};
  objc::add_method<&flush>(objc::class_of(transactions.id()), "flush");
}

}  // namespace host::quartzcore
