#include "host/uikit/gesture/gesture_arena.h"

#include <algorithm>

#include "host/uikit/gesture/gesture_recognizer.h"
#include "host/uikit/touch/event.h"
#include "host/uikit/touch/present_touches.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {
namespace {

GestureRecognizer& state_of(UIGestureRecognizer recognizer) {
  return objc::state_of<GestureRecognizer>(recognizer);
}

/// The consent of one delegate is enough, whichever recogniser it belongs to.
bool may_go_together(UIGestureRecognizer first, UIGestureRecognizer second) {
  const auto agrees = [](UIGestureRecognizer one, UIGestureRecognizer other) {
    const auto delegate = objc::cast<UIGestureRecognizerDelegate>(one.delegate());
    return delegate.respondsToSelector(
               "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:"_sel) &&
           delegate.gestureRecognizerShouldRecognizeSimultaneously(one, other);
  };
  return agrees(first, second) || agrees(second, first);
}

bool prevents(UIGestureRecognizer winner, UIGestureRecognizer loser) {
  return !may_go_together(winner, loser) && winner.canPreventGestureRecognizer(loser) &&
         loser.canBePreventedByGestureRecognizer(winner);
}

bool share_touch(const GestureRecognizer& one, const GestureRecognizer& other) {
  return one.shares_touch_with(other) || other.shares_touch_with(one);
}

bool receives(UIGestureRecognizer recognizer, UITouch touch) {
  const auto delegate = objc::cast<UIGestureRecognizerDelegate>(recognizer.delegate());
  return !delegate.respondsToSelector("gestureRecognizer:shouldReceiveTouch:"_sel) ||
         delegate.gestureRecognizerShouldReceiveTouch(recognizer, touch);
}

bool is_undecided(UIGestureRecognizer recognizer) {
  return state_of(recognizer).is_undecided();
}

}  // namespace

GestureArena& GestureArena::shared() {
  // Never destroyed: its objects must not be released after the runtime is gone.
  static GestureArena& arena = *new GestureArena;
  return arena;
}

void GestureArena::engage(UIGestureRecognizer recognizer) {
  const auto is_it = [recognizer](const auto& present) { return present.get() == recognizer; };
  if (std::none_of(engaged_.begin(), engaged_.end(), is_it))
    engaged_.push_back(objc::Ref<UIGestureRecognizer>::retain(recognizer));
}

void GestureArena::disengage(UIGestureRecognizer recognizer) {
  std::erase_if(engaged_,
                [recognizer](const auto& present) { return present.get() == recognizer; });
}

std::vector<objc::Ref<UIGestureRecognizer>> GestureArena::others_than(
    UIGestureRecognizer recognizer) const {
  auto others = engaged_;
  std::erase_if(others, [recognizer](const auto& other) { return other.get() == recognizer; });
  return others;
}

void GestureArena::collect_recognizers(Touch& touch) {
  for (UIView view = touch.view(); view; view = view.superview()) {
    const NSArray recognizers = view.gestureRecognizers();
    for (const auto recognizer : recognizers.of<UIGestureRecognizer>()) {
      GestureRecognizer& state = state_of(recognizer);
      const UITouch handle = touch.handle();
      if (!recognizer.isEnabled() || state.is_over() || !receives(recognizer, handle)) continue;
      touch.recognizers().push_back(objc::Ref<UIGestureRecognizer>::retain(recognizer));
      state.take(handle);
      engage(recognizer);
    }
  }
}

void GestureArena::tell_recognizers(UITouch touch, UIEvent event) {
  const NSSet touches = NSSet::setWithObject(touch);
  const auto recognizers = objc::state_of<Touch>(touch).recognizers();
  const UITouchPhase phase = touch.phase();
  for (const auto& recognizer : recognizers) {
    // A recogniser may have had the touch cancelled; by now all of them have been told.
    if (touch.phase() != phase) return;
    if (state_of(recognizer.get()).is_over()) continue;
    // Another recogniser may have been disabled meanwhile; it no longer takes part in the touch.
    if (!objc::state_of<Touch>(touch).is_seen_by(recognizer.get())) continue;
    switch (phase) {
      case UITouchPhaseBegan:
        recognizer->touchesBegan(touches, event);
        break;
      case UITouchPhaseMoved:
        recognizer->touchesMoved(touches, event);
        break;
      case UITouchPhaseEnded:
        recognizer->touchesEnded(touches, event);
        break;
      case UITouchPhaseCancelled:
        recognizer->touchesCancelled(touches, event);
        break;
      case UITouchPhaseStationary:
        break;
    }
  }
}

void GestureArena::dispatch(UITouch touch, UIEvent event) {
  const auto kept = objc::Ref<UITouch>::retain(touch);
  ++dispatching_;
  if (touch.phase() == UITouchPhaseBegan) collect_recognizers(objc::state_of<Touch>(touch));
  tell_recognizers(touch, event);
  // A cancellation is never delayed, not even during another event.
  if (touch.phase() == UITouchPhaseCancelled) objc::state_of<Touch>(touch).cancel_in_view(event);
  --dispatching_;
  settle();
}

bool GestureArena::is_prevented(const GestureRecognizer& recognizer) const {
  const auto others = others_than(recognizer.handle());
  return std::any_of(others.begin(), others.end(), [&](const auto& other) {
    const GestureRecognizer& state = state_of(other.get());
    const bool won = state.is_under_way() || state.state() == UIGestureRecognizerStateEnded;
    return won && share_touch(recognizer, state) && prevents(other.get(), recognizer.handle());
  });
}

bool GestureArena::has_to_wait(const GestureRecognizer& recognizer) const {
  const auto others = others_than(recognizer.handle());
  return std::any_of(others.begin(), others.end(), [&](const auto& other) {
    return state_of(other.get()).is_undecided() && recognizer.waits_for(other.get());
  });
}

void GestureArena::recognized(const GestureRecognizer& winner) {
  const UIGestureRecognizer handle = winner.handle();
  for (const auto& other : others_than(handle)) {
    GestureRecognizer& state = state_of(other.get());
    if (!state.is_undecided()) continue;
    const bool loses = share_touch(winner, state) && prevents(handle, other.get());
    if (loses || state.waits_for(handle)) state.fail();
  }
  if (!handle.cancelsTouchesInView()) return;
  for (const auto& touch : present_touches()) {
    Touch& state = objc::state_of<Touch>(touch.get());
    if (state.is_seen_by(handle)) state.cancel_in_view(touches_event());
  }
}

void GestureArena::failed(const GestureRecognizer& loser) {
  for (const auto& other : others_than(loser.handle())) {
    GestureRecognizer& state = state_of(other.get());
    if (state.is_waiting() && state.waits_for(loser.handle())) state.reconsider();
  }
}

void GestureArena::settle() {
  if (dispatching_ > 0) return;
  ++dispatching_;
  for (const auto& touch : present_touches())
    objc::state_of<Touch>(touch.get()).deliver(touches_event(), &is_undecided);
  const auto engaged = engaged_;
  for (const auto& recognizer : engaged) {
    GestureRecognizer& state = state_of(recognizer.get());
    state.drop_lifted_touches();
    if (!state.is_ready_to_reset()) continue;
    disengage(recognizer.get());
    state.start_over();
  }
  --dispatching_;
  drop_finished_touches();
}

}  // namespace host::uikit
