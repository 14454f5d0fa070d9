#include "host/uikit/keyboard/keyboard.h"

#include <memory>

#include "host/uikit/text/key_input.h"
#include "host/uikit/view/responder.h"

namespace host::uikit {
namespace {

std::unique_ptr<Keyboard>& the_keyboard() {
  // Never destroyed: its objects must not be released after the runtime is gone.
  static auto& keyboard = *new std::unique_ptr<Keyboard>;
  return keyboard;
}

void first_responder_changed() {
  auto& keyboard = the_keyboard();
  if (!keyboard) {
    if (!takes_text(first_responder())) return;
    keyboard = std::make_unique<Keyboard>();
  }
  keyboard->first_responder_changed();
}

void text_typed() {
  if (auto& keyboard = the_keyboard()) keyboard->text_typed();
}

KeyState state_of(ShiftState::Value shift) {
  if (shift == ShiftState::Value::Off) return KeyState::Resting;
  return shift == ShiftState::Value::Once ? KeyState::Engaged : KeyState::Locked;
}

}  // namespace

objc::Ref<UIKBKeyplaneView> Keyboard::make_view() {
  const BoardMetrics metrics = metrics_of(current_device());
  const CGRect frame(0, 0, metrics.screen.width, metrics.height);
  return objc::Ref<UIKBKeyplaneView>::adopt(
      objc::cast<UIKBKeyplaneView>(UIKBKeyplaneView::alloc().initWithFrame(frame)));
}

Keyboard::Keyboard()
    : view_(make_view()),
      slide_(view_.get()),
      typing_([this] { show_keys(); }),
      touches_(typing_, [] { first_responder().resignFirstResponder(); }) {
  keys().set_up(metrics_of(current_device()), &touches_);
  touches_.set_view(&keys());
}

Keyboard::~Keyboard() {
  keys().set_up(keys().metrics(), nullptr);
}

void Keyboard::first_responder_changed() {
  const UIResponder taker = first_responder();
  if (!takes_text(taker)) {
    touches_.stop();
    return slide_.hide();
  }
  // The keys must not move, even when an enclosing animation block is running.
  UIView::performWithoutAnimation(objc::block([this, taker] { typing_.begin(traits_of(taker)); }));
  slide_.show();
}

void Keyboard::text_typed() {
  if (is_shown()) typing_.look_at_text();
}

void Keyboard::show_keys() {
  KeyplaneView& shown = keys();
  if (shown.show(typing_.plane(), typing_.traits())) touches_.keys_changed();
  const KeyState shift = state_of(typing_.shift());
  const auto& all = shown.layout().keys;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].kind == KeyKind::Shift) shown.set_state(i, shift);
  }
}

Keyboard* present_keyboard() {
  return the_keyboard().get();
}

void forget_keyboard() {
  the_keyboard().reset();
}

void watch_first_responder() {
  observe_first_responder(&first_responder_changed);
  observe_typing(&text_typed);
}

}  // namespace host::uikit
