#pragma once

#include "host/uikit/keyboard/keyboard_notifications.h"
#include "host/uikit/text/effects_window.h"
#include "objc/ref.h"

namespace host::uikit {

/// Slides a view in from below the screen in its own window and out again, and posts the
/// notifications of both.
class KeyboardSlide {
 public:
  explicit KeyboardSlide(UIView content);
  ~KeyboardSlide();
  KeyboardSlide(const KeyboardSlide&) = delete;
  KeyboardSlide& operator=(const KeyboardSlide&) = delete;

  void show();
  void hide();
  /// From the moment the view begins to slide in until it begins to slide out.
  bool is_shown() const { return is_shown_; }
  UIWindow window() const { return window_.get(); }

 private:
  CGRect place(bool shown) const;
  void move(bool shown, NSString will, NSString did);
  void arrived(const KeyboardMove& done, NSString did);

  objc::Ref<UIView> content_;
  objc::Ref<UITextEffectsWindow> window_;
  bool is_shown_ = false;
  /// Counts the moves: a move overtaken by the next one has no end of its own.
  int moves_ = 0;
};

}  // namespace host::uikit
