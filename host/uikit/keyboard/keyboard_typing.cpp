#include "host/uikit/keyboard/keyboard_typing.h"

#include "host/uikit/keyboard/sentence.h"
#include "host/uikit/keyboard_layout/keyboard_layout.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/text/text_context.h"

namespace host::uikit {
namespace {

NSString string_of(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

}  // namespace

void KeyboardTyping::begin(const KeyboardTraits& traits) {
  traits_ = traits;
  plane_ = first_plane(traits.type);
  shift_.reset();
  look_at_text();
}

bool KeyboardTyping::wants_capital() const {
  if (traits_.autocapitalization == UITextAutocapitalizationTypeNone) return false;
  const NSString before = text_before_caret();
  return before && capital_is_due(before, traits_.autocapitalization);
}

void KeyboardTyping::look_at_text() {
  shift_.suggest(wants_capital());
  on_change_();
}

std::string KeyboardTyping::in_case(const std::string& text) const {
  // Longer texts on the letter plane, such as `.com`, are not letters.
  if (plane_ != KeyPlane::Letters || !shift_.makes_capitals() || text.size() > 2) return text;
  const NSString capital = string_of(text).uppercaseString();
  // A letter without a single-character capital stays as it is.
  return capital.length() == 1 ? capital.UTF8String() : text;
}

void KeyboardTyping::type(const std::string& text) {
  type_text(string_of(text));
  if (plane_ == KeyPlane::Letters && text != " ") shift_.typed();
  // After the end of a word, or within one, typing continues with letters rather than symbols.
  const bool back = text == " " || (text == "'" && plane_ == KeyPlane::Numbers);
  if (back && first_plane(traits_.type) == KeyPlane::Letters) plane_ = KeyPlane::Letters;
  look_at_text();
}

void KeyboardTyping::press_return() {
  press_key("return");
  if (first_plane(traits_.type) == KeyPlane::Letters) plane_ = KeyPlane::Letters;
  look_at_text();
}

void KeyboardTyping::press_backspace() {
  press_key("backspace");
  look_at_text();
}

void KeyboardTyping::press_shift(double time) {
  shift_.press(time);
  on_change_();
}

void KeyboardTyping::release_shift() {
  shift_.release();
  on_change_();
}

void KeyboardTyping::show_plane(KeyPlane plane) {
  plane_ = plane;
  look_at_text();
}

}  // namespace host::uikit
