#include "host/uikit/focus/focus.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/uikit/focus/focus_scrolling.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/view/responder.h"

namespace host::uikit {
namespace {

// Among the observers of a turn's end: after layout, before drawing.
constexpr int kTurnOrder = 150;
// A finger of its own, other than the user's.
constexpr int kFinger = 100;
// In seconds: a quick finger.
constexpr double kTapTime = 0.05;

Focus* present = nullptr;

struct FocusKey {
  std::string_view key;
  FocusStep step;
};

constexpr FocusKey kFocusKeys[] = {
    {"tab", FocusStep::Next},  {"shift-tab", FocusStep::Previous}, {"up", FocusStep::Up},
    {"down", FocusStep::Down}, {"left", FocusStep::Left},          {"right", FocusStep::Right},
};

bool takes_text(UIView view) {
  return view.respondsToSelector("insertText:"_sel);
}

UIView field_with_keyboard() {
  const UIResponder responder = first_responder();
  if (!caret_on_screen() || !responder.isKindOfClass(UIView::cls())) return nil;
  return objc::cast<UIView>(responder);
}

std::vector<CGRect> places_of(const std::vector<FocusStop>& stops) {
  std::vector<CGRect> places;
  places.reserve(stops.size());
  for (const FocusStop& stop : stops)
    places.push_back(stop.place);
  return places;
}

std::optional<FocusStop> stop_at(const std::vector<FocusStop>& stops,
                                 std::optional<std::size_t> index) {
  return index ? std::optional(stops[*index]) : std::nullopt;
}

std::optional<FocusStop> outermost_stop(FocusStep step, const std::vector<FocusStop>& stops) {
  return stop_at(stops, outermost_place(step, places_of(stops)));
}

}  // namespace

Focus::Focus(RunLoop& loop)
    : loop_(loop), turns_(loop.add_turn_observer(kTurnOrder, [this] { settle(); })) {
  present = this;
}

Focus::~Focus() {
  loop_.remove_turn_observer(turns_);
  present = nullptr;
}

Focus* Focus::current() {
  return present;
}

bool Focus::press_key(std::string_view key) {
  if (key == "return") return press();
  for (const auto& [name, step] : kFocusKeys) {
    if (name == key) return move(step);
  }
  return false;
}

void Focus::end() {
  view_.reset();
  around_.reset();
  turning_.reset();
  ring_.hide();
}

bool Focus::press() {
  if (!view_ || !is_in_sight(*view_)) return false;
  const CGPoint point = place_in(*view_, nil).centre();
  finger_.began(kFinger, point, loop_.now());
  lift_.start(kTapTime, [this, point] { finger_.ended(kFinger, point, loop_.now()); });
  return true;
}

bool Focus::move(FocusStep step) {
  if (turning_) return true;
  const UIView field = field_with_keyboard();
  const UIView start = field ? field : view_.get();
  auto found = start ? search(start, step) : std::nullopt;
  if (turning_) return true;
  if (!found && (!start || is_reading(step))) found = outermost_stop(step, stops_in_sight());
  if (!found) return false;
  if (field && field != *found->view && takes_text(*found->view)) {
    found->view->becomeFirstResponder();
  } else if (field && !field.resignFirstResponder()) {
    return true;
  }
  take(*found->view);
  return true;
}

/// What the content around the start hides comes before what lies outside of it.
std::optional<FocusStop> Focus::search(UIView start, FocusStep step) {
  CGRect from = place_in(start, nil);
  Scrolling around = scrolling_around(start, step);
  for (CGFloat scrolled = 0;;) {
    const auto stops = stops_in_sight();
    auto found = stop_at(stops, place_after(from, step, places_of(stops)));
    if (!around.view || (found && found->view->isDescendantOfView(*around.view))) return found;
    if (around.view->isPagingEnabled()) {
      turning_ = PageTurn{around.view, step, turn_page(around, from)};
      return std::nullopt;
    }
    const CGRect before = std::exchange(from, scroll_on(around, from));
    scrolled += std::abs(from.min_x() - before.min_x()) + std::abs(from.min_y() - before.min_y());
    const CGSize size = around.view->bounds().size;
    if (scrolled > std::max(size.width, size.height)) return std::nullopt;
    if (from == before || !around.can_go_on()) around = scrolling_around(*around.view, step);
  }
}

void Focus::arrive() {
  if (turning_->pages->isDecelerating()) return;
  const PageTurn turn = *std::exchange(turning_, std::nullopt);
  auto stops = stops_in_sight();
  std::erase_if(stops,
                [&](const FocusStop& stop) { return !stop.view->isDescendantOfView(*turn.pages); });
  auto found = is_reading(turn.step)
                   ? std::nullopt
                   : stop_at(stops, place_after(turn.from, turn.step, places_of(stops)));
  if (!found) found = outermost_stop(turn.step, stops);
  if (found) take(*found->view);
}

void Focus::take(UIView view) {
  view_.reset(view);
  around_.reset(scroll_view_around(view));
  place_ = place_in(view, *around_);
  bring_into_sight(view);
  settle();
}

// A list that is read again may show its rows in other views.
void Focus::follow_row() {
  if (!around_ || (view_->window() && place_in(*view_, *around_) == place_)) return;
  for (const FocusStop& stop : stops_in_sight()) {
    if (scroll_view_around(*stop.view) != *around_ || place_in(*stop.view, *around_) != place_)
      continue;
    view_ = stop.view;
    return;
  }
}

void Focus::settle() {
  if (turning_) arrive();
  if (!view_) return;
  follow_row();
  if (!view_->window()) return end();
  place_ = place_in(*view_, *around_);
  if (is_in_sight(*view_)) {
    ring_.show_around(*view_);
  } else {
    ring_.hide();
  }
}

void end_focus() {
  if (present) present->end();
}

}  // namespace host::uikit
