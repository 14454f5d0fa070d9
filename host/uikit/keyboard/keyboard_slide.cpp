#include "host/uikit/keyboard/keyboard_slide.h"

namespace host::uikit {
namespace {

constexpr double kDuration = 0.25;
// The keyboard keeps its own timing, whatever animation block the first responder changes in.
constexpr UIViewAnimationOptions kOptions =
    UIViewAnimationOptionAllowUserInteraction | UIViewAnimationOptionBeginFromCurrentState |
    UIViewAnimationOptionOverrideInheritedDuration | UIViewAnimationOptionOverrideInheritedCurve |
    UIViewAnimationOptionOverrideInheritedOptions | UIViewAnimationCurveKeyboard << 16;

}  // namespace

KeyboardSlide::KeyboardSlide(UIView content)
    : content_(objc::Ref<UIView>::retain(content)),
      window_(objc::Ref<UITextEffectsWindow>::adopt(make_effects_window(kKeyboardWindowLevel))) {
  const auto prepare = [this] {
    window_->addSubview(content_.get());
    content_->setFrame(place(false));
  };
  UIView::performWithoutAnimation(objc::block(prepare));
}

KeyboardSlide::~KeyboardSlide() {
  window_->setHidden(YES);
}

CGRect KeyboardSlide::place(bool shown) const {
  const CGRect screen = window_->bounds();
  const CGSize size = content_->bounds().size;
  return {0, shown ? screen.max_y() - size.height : screen.max_y(), size.width, size.height};
}

void KeyboardSlide::show() {
  if (is_shown_) return;
  is_shown_ = true;
  window_->setHidden(NO);
  move(true, UIKeyboardWillShowNotification, UIKeyboardDidShowNotification);
}

void KeyboardSlide::hide() {
  if (!is_shown_) return;
  is_shown_ = false;
  move(false, UIKeyboardWillHideNotification, UIKeyboardDidHideNotification);
}

void KeyboardSlide::move(bool shown, NSString will, NSString did) {
  const KeyboardMove asked{content_->frame(), place(shown), kDuration};
  const int number = ++moves_;
  post_keyboard_notification(will, asked);
  // An observer may have reversed the move already.
  if (number != moves_) return;
  UIView::animateWithDuration(
      kDuration, 0, kOptions,
      objc::block([content = content_.get(), end = asked.end] { content.setFrame(end); }),
      objc::block([this, number, asked, did](BOOL) {
        if (number == moves_) arrived(asked, did);
      }));
}

void KeyboardSlide::arrived(const KeyboardMove& done, NSString did) {
  if (!is_shown_) window_->setHidden(YES);
  post_keyboard_notification(did, done);
}

}  // namespace host::uikit
