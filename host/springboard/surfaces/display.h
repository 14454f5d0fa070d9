#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// The display: its brightness, and whether it is on. A display that is off is black and ignores
/// fingers; turning it off cancels the touches. Full brightness costs nothing.
class Display {
 public:
  Display();
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  bool is_on() const { return is_on_; }
  void turn_on();
  void turn_off();
  /// 0 is dark but still readable, 1 is the brightest.
  double brightness() const { return brightness_; }
  void set_brightness(double brightness);

 private:
  objc::Ref<UIWindow> veil_;
  objc::Ref<UIWindow> dark_;
  double brightness_ = 1;
  bool is_on_ = true;
};

Display& display();

}  // namespace host::springboard
