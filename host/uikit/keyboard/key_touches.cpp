#include "host/uikit/keyboard/key_touches.h"

#include <algorithm>

#include "host/uikit/keyboard_layout/accents.h"

namespace host::uikit {
namespace {

// In seconds.
constexpr double kHold = 0.5;
constexpr double kRepeat = 0.1;

}  // namespace

KeyTouches::Press* KeyTouches::press_of(UITouch touch) {
  const auto found = std::find_if(presses_.begin(), presses_.end(),
                                  [touch](const Press& press) { return press.touch == touch; });
  return found == presses_.end() ? nullptr : &*found;
}

bool KeyTouches::has_previews() const {
  return !view_->metrics().is_tablet && !view_->layout().is_number_pad;
}

void KeyTouches::keys_changed() {
  for (Press& press : presses_)
    press.key.reset();
  hold_.stop();
}

void KeyTouches::stop() {
  for (const Press& press : presses_)
    show_resting(press);
  presses_.clear();
  hold_.stop();
  view_->hide_popup();
}

void KeyTouches::began(UITouch touch, CGPoint point) {
  commit_others();
  const auto index = view_->layout().key_at(point);
  if (!index) return;
  presses_.push_back({touch, view_->layout().keys[*index].kind, std::nullopt, std::nullopt, false});
  land(presses_.back(), *index);
}

void KeyTouches::land(Press& press, std::size_t index) {
  const KeyPlane next_plane = view_->layout().keys[index].plane;
  switch (press.kind) {
    case KeyKind::Shift:
      return typing_.press_shift(RunLoop::main().now());
    case KeyKind::Plane:
      press.plane_before = typing_.plane();
      return typing_.show_plane(next_plane);
    case KeyKind::Backspace:
      view_->set_state(index, KeyState::Pressed);
      press.key = index;
      hold_.start(kHold, [this] { repeat_backspace(); });
      return typing_.press_backspace();
    case KeyKind::Nothing:
      return;
    default:
      return put_on(press, index);
  }
}

void KeyTouches::put_on(Press& press, std::optional<std::size_t> index) {
  if (press.key == index) return;
  show_resting(press);
  hold_.stop();
  press.key = index;
  if (!index) return;
  show_pressed(press);
  if (view_->layout().keys[*index].kind == KeyKind::Character)
    hold_.start(kHold, [this, touch = press.touch] { offer_accents(touch); });
}

void KeyTouches::show_pressed(const Press& press) {
  const Key& key = view_->layout().keys[*press.key];
  if (key.kind == KeyKind::Character && has_previews()) {
    view_->show_popup(preview_shape(view_->metrics(), key.frame), {key.label});
  } else {
    view_->set_state(*press.key, KeyState::Pressed);
  }
}

void KeyTouches::show_resting(const Press& press) {
  if (!press.key) return;
  view_->set_state(*press.key, KeyState::Resting);
  if (view_->layout().keys[*press.key].kind == KeyKind::Character) view_->hide_popup();
}

void KeyTouches::offer_accents(UITouch touch) {
  Press* press = press_of(touch);
  if (!press || !press->key) return;
  const Key& key = view_->layout().keys[*press->key];
  auto letters = accents_of(key.text);
  if (letters.empty()) return;
  for (std::string& letter : letters)
    letter = typing_.in_case(letter);
  press->chooses_accent = true;
  const auto shape = accents_shape(view_->metrics(), key.frame, letters.size());
  view_->show_popup(shape, std::move(letters));
}

void KeyTouches::repeat_backspace() {
  typing_.press_backspace();
  // The text input may have gone, and with it the keyboard's fingers.
  if (presses_.empty()) return;
  hold_.start(kRepeat, [this] { repeat_backspace(); });
}

void KeyTouches::moved(UITouch touch, CGPoint point) {
  Press* press = press_of(touch);
  if (!press) return;
  if (press->chooses_accent) {
    if (PopupView* popup = view_->popup()) popup->choose(popup->shape().cell_at(point.x));
    return;
  }
  const auto index = view_->layout().key_at(point);
  if (!index) return;
  if (press->kind == KeyKind::Backspace || press->kind == KeyKind::Dismiss) {
    // Once left, such a key does nothing more, and no key on the way types.
    if (index != press->key) put_on(*press, std::nullopt);
    return;
  }
  const bool takes = view_->layout().keys[*index].takes_sliding_finger();
  put_on(*press, takes ? index : std::nullopt);
}

void KeyTouches::ended(UITouch touch) {
  const Press* found = press_of(touch);
  if (!found) return;
  const Press press = *found;
  std::erase_if(presses_, [touch](const Press& one) { return one.touch == touch; });
  commit(press);
}

void KeyTouches::cancelled(UITouch touch) {
  const Press* found = press_of(touch);
  if (!found) return;
  const Press press = *found;
  std::erase_if(presses_, [touch](const Press& one) { return one.touch == touch; });
  show_resting(press);
  hold_.stop();
  if (press.kind == KeyKind::Shift) typing_.release_shift();
}

void KeyTouches::commit(Press press) {
  if (presses_.empty() || press.key) hold_.stop();
  std::optional<Key> key;
  if (press.key) key = view_->layout().keys[*press.key];
  const PopupView* popup = press.chooses_accent ? view_->popup() : nullptr;
  const std::string accent = popup ? popup->chosen() : std::string();
  show_resting(press);
  if (!accent.empty()) {
    typing_.type(accent);
  } else if (key && (key->kind == KeyKind::Character || key->kind == KeyKind::Space)) {
    typing_.type(typing_.in_case(key->text));
    if (press.plane_before) typing_.show_plane(*press.plane_before);
  } else if (key && key->kind == KeyKind::Return) {
    typing_.press_return();
  } else if (key && key->kind == KeyKind::Dismiss) {
    on_dismiss_();
  }
  if (press.kind == KeyKind::Shift) typing_.release_shift();
}

void KeyTouches::commit_others() {
  // A held shift key applies to the next finger; every other press completes when the next one
  // lands.
  const auto others = presses_;
  std::erase_if(presses_, [](const Press& press) { return press.kind != KeyKind::Shift; });
  for (const Press& press : others) {
    if (press.kind != KeyKind::Shift) commit(press);
  }
}

}  // namespace host::uikit
