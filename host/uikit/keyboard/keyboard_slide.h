#pragma once

#include "host/uikit/keyboard/keyboard_notifications.h"
#include "host/uikit/text/effects_window.h"
#include "objc/ref.h"

namespace host::uikit {

/// Brings a view up from below the screen in a window of its own, and takes it away again, and
/// tells everybody.
class KeyboardSlide {
 public:
  explicit KeyboardSlide(UIView content);
  ~KeyboardSlide();
  KeyboardSlide(const KeyboardSlide&) = delete;
  KeyboardSlide& operator=(const KeyboardSlide&) = delete;

  void show();
  void hide();
  /// From the moment it begins to come until it begins to go.
  bool is_shown() const { return is_shown_; }
  UIWindow window() const { return window_.get(); }

 private:
  CGRect place(bool shown) const;
  void move(bool shown, NSString will, NSString did);
  void arrived(const KeyboardMove& done, NSString did);

  objc::Ref<UIView> content_;
  objc::Ref<UITextEffectsWindow> window_;
  bool is_shown_ = false;
  /// Counts the moves: one that was overtaken by the next has no end of its own.
  int moves_ = 0;
};

}  // namespace host::uikit
