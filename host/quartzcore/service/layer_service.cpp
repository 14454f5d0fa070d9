#include "host/quartzcore/service/layer_service.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "host/quartzcore/animations/animation_delegate.h"
#include "host/quartzcore/animations/media_time.h"
#include "host/quartzcore/animations/transaction.h"
#include "host/quartzcore/layers/animated_layers.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/layers/marked_layers.h"
#include "host/quartzcore/layers/retained_layers.h"
#include "host/quartzcore/service/backing_store_budget.h"
#include "host/runtime/log.h"

namespace host::quartzcore {
namespace {

// A layout that marks itself again each time would block the screen forever.
constexpr int kMostRounds = 100;

LayerService* service = nullptr;

void announce_starts() {
  AnimatedLayers::News& news = animated_layers().news();
  if (!std::exchange(news.starts, false)) return;
  std::vector<RunningAnimation> observed;
  for (CALayer layer : animated_layers().all())
    news.starts |= layer_of(layer).animations.start(media_time(), observed);
  notify_starts(observed);
}

void advance(Layer& layer, double time) {
  std::vector<RunningAnimation> observed;
  layer.animations.start(media_time(), observed);
  notify_starts(observed);
  auto ended = layer.animations.take_ended(time);
  if (ended.empty()) return;
  if (std::any_of(ended.begin(), ended.end(), &LayerAnimations::moves)) layer.reach.forget();
  note_layer_change();
  for (RunningAnimation& animation : ended)
    stop_animation(animation, YES, Notify::AtOnce);
}

void flush(objc::Object) {
  flush_layers();
}

}  // namespace

LayerService::LayerService(RunLoop& loop)
    : loop_(loop), turn_observer_(loop.add_turn_observer(kTurnOrder, [] { flush_layers(); })) {
  service = this;
  animated_layers().news().ends = true;
  animated_layers().ask_for_frames(loop, [this] { advance_animations(); });
}

LayerService::~LayerService() {
  loop_.remove_turn_observer(turn_observer_);
  animated_layers().stop_frames();
  if (end_timer_) loop_.remove_timer(end_timer_);
  service = nullptr;
  // An animation retains its listener, which retains the layer. Nothing else would end it now.
  for (const auto& layer : retained(animated_layers().take())) {
    layer_of(layer.get()).animations.is_listed = false;
    layer->removeAllAnimations();
  }
}

LayerService* LayerService::current() {
  return service;
}

void LayerService::wait_for_next_end() {
  if (!std::exchange(animated_layers().news().ends, false)) return;
  double end = std::numeric_limits<double>::infinity();
  animated_layers().remove_if([&end](CALayer handle) {
    LayerAnimations& animations = layer_of(handle).animations;
    end = std::min(end, animations.next_end());
    if (animations.wants_frames()) return false;
    animations.is_listed = false;
    return true;
  });
  if (end_timer_ && end == end_time_) return;
  if (end_timer_) loop_.remove_timer(std::exchange(end_timer_, 0));
  end_time_ = end;
  if (end == std::numeric_limits<double>::infinity()) return;
  end_timer_ = loop_.add_timer(end, 0, [this] {
    end_timer_ = 0;
    animated_layers().news().ends = true;
    advance_animations();
  });
}

bool LayerService::has_news() const {
  const AnimatedLayers::News& news = animated_layers().news();
  return news.starts || news.ends || loop_.now() + kTimeTolerance >= end_time_;
}

void LayerService::advance_animations() {
  if (!has_news()) return;
  animated_layers().news().ends = true;
  for (const auto& layer : retained(animated_layers().all()))
    advance(layer_of(layer.get()), loop_.now());
  wait_for_next_end();
}

void flush_layers() {
  for (int round = 0; marked_layer_count() > 0; ++round) {
    if (round == kMostRounds) {
      spdlog::warn("layout did not come to rest: {} layers are still marked", marked_layer_count());
      break;
    }
    const auto marked = take_marked_layers();
    for (const auto& layer : marked)
      layer_of(layer.get()).marks.is_listed = false;
    for (const auto& layer : marked)
      layer->layoutIfNeeded();
    for (const auto& layer : marked) {
      if (!layer->needsDisplay() || layer_of(layer.get()).reach.is_clipped_away()) continue;
      layer->displayIfNeeded();
    }
  }
  trim_backing_stores();
  announce_starts();
  if (service) service->wait_for_next_end();
  end_implicit_transaction();
}

void export_layer_flush() {
  const objc::Object transactions{reinterpret_cast<objc::Id>(CATransaction::cls())};
  objc::add_method<&flush>(objc::class_of(transactions.id()), "flush");
}

}  // namespace host::quartzcore
