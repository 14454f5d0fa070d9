#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/device_model.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/geometry/window_list.h"
#include "host/uikit/keyboard/exports.h"
#include "host/uikit/keyboard/keyboard.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/support/host_test.h"

namespace host::test {

/// A phone's screen with a window that holds a text field, with fingers and an automatic keyboard.
class KeyboardTest : public HostTest {
 public:
  KeyboardTest() : KeyboardTest(*device_model(kDefaultDevice)) {}
  explicit KeyboardTest(const DeviceModel& device) {
    set_current_device(device);
    uikit::export_drawing();
    uikit::export_application();
    uikit::export_text();
    uikit::export_keyboard();
    layers.emplace(loop);
    const CGRect screen(0, 0, device.width, device.height);
    window = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame(screen));
    window->setBackgroundColor(UIColor::whiteColor());
    window->setHidden(NO);
    field = add_field({20, 100, device.width - 40, 30});
  }
  void TearDown() override { input.cancel_all(clock.now()); }
  ~KeyboardTest() override {
    field.resignFirstResponder();
    advance(1);
    uikit::forget_keyboard();
    window->setHidden(YES);
    window.reset();
    advance(1);
    layers.reset();
    set_current_device(*device_model(kDefaultDevice));
  }

  UITextField add_field(CGRect frame) {
    const UITextField made = UITextField::alloc().initWithFrame(frame).autorelease();
    made.setAutocapitalizationType(UITextAutocapitalizationTypeNone);
    made.setBorderStyle(UITextBorderStyleRoundedRect);
    window->addSubview(made);
    return made;
  }

  /// Makes the field the first responder and waits until the keyboard has arrived.
  void open() {
    field.becomeFirstResponder();
    advance(1);
  }

  uikit::Keyboard& keyboard() const { return *uikit::present_keyboard(); }
  bool is_up() const { return uikit::present_keyboard() && keyboard().is_shown(); }

  /// Returns the centre, on the screen, of the key with this text or label.
  CGPoint key(const std::string& name) const {
    for (const uikit::Key& one : keyboard().keys().layout().keys) {
      if (one.text == name || one.label == name) return on_screen(one.frame.centre());
    }
    ADD_FAILURE() << "no key " << name;
    return {};
  }
  CGPoint key(uikit::KeyKind kind) const {
    return on_screen(keyboard().keys().layout().first_of(kind)->frame.centre());
  }
  CGPoint on_screen(CGPoint point) const {
    const CGRect bounds = keyboard().window().bounds();
    return {point.x, bounds.max_y() - keyboard().keys().layout().size.height + point.y};
  }

  void press(CGPoint point, int finger = 1) { input.began(finger, point, clock.now()); }
  void slide(CGPoint point, int finger = 1) { input.moved(finger, point, clock.now()); }
  void lift(CGPoint point, int finger = 1) { input.ended(finger, point, clock.now()); }
  void tap(CGPoint point) {
    press(point);
    advance(0.05);
    lift(point);
    advance(0.05);
  }
  void tap_keys(const std::vector<std::string>& names) {
    for (const std::string& name : names)
      tap(key(name));
  }
  std::string text() const { return field.text().UTF8String(); }

  /// Paints every view and window in its current state.
  quartzcore::Damage paint() {
    quartzcore::flush_layers();
    const DeviceModel& device = current_device();
    if (!compositor) {
      compositor.emplace(static_cast<int>(device.width * device.scale),
                         static_cast<int>(device.height * device.scale), device.scale);
    }
    std::vector<CALayer> roots;
    for (const UIWindow shown : uikit::visible_windows())
      roots.push_back(shown.layer());
    return compositor->render(roots, clock.now());
  }

  std::optional<quartzcore::LayerService> layers;
  std::optional<quartzcore::Compositor> compositor;
  objc::Ref<UIWindow> window;
  UITextField field;
  uikit::TouchInput input;
};

}  // namespace host::test
