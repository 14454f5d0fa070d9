#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/quartzcore/service/layer_service.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/support/host_test.h"

namespace host::test {

/// A phone's screen with one empty window, up to two fingers, and a record of messages and
/// receivers.
class UIKitTest : public HostTest {
 public:
  static constexpr CGRect kScreen{0, 0, 375, 667};
  static constexpr double kReport = 1.0 / 60;
  using Events = std::vector<std::string>;

  UIKitTest() {
    uikit::export_drawing();
    uikit::export_application();
    uikit::export_text();
    layers.emplace(loop);
    window = UIWindow::alloc().initWithFrame(kScreen);
    window.setHidden(NO);
    events().clear();
  }
  // Here rather than in the destructor: the targets told of the gestures' end must still be alive.
  void TearDown() override { input.cancel_all(clock.now()); }
  ~UIKitTest() override {
    window.setHidden(YES);
    window.release();
    advance(2);
    layers.reset();
  }

  static Events& events() {
    static Events told;
    return told;
  }
  /// Returns the messages recorded since the last call.
  static Events told() { return std::exchange(events(), {}); }

  /// Returns a plain view in the window, owned by its superview.
  UIView add_view(CGRect frame) {
    const UIView view = UIView::alloc().initWithFrame(frame).autorelease();
    window.addSubview(view);
    return view;
  }

  void press(CGPoint point, int finger = 0) { input.began(finger, point, clock.now()); }
  void move(CGPoint point, int finger = 0) { input.moved(finger, point, clock.now()); }
  void lift(CGPoint point, int finger = 0) { input.ended(finger, point, clock.now()); }
  void tap(CGPoint point) {
    press(point);
    advance(0.05);
    lift(point);
  }
  /// Moves the finger steadily, with one report per frame.
  void glide(CGPoint from, CGPoint to, double seconds) {
    const int reports = std::max(1, static_cast<int>(seconds / kReport + 0.5));
    for (int report = 1; report <= reports; ++report) {
      advance(seconds / reports);
      const double share = static_cast<double>(report) / reports;
      move({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
    }
  }

 protected:
  std::optional<quartzcore::LayerService> layers;
  UIWindow window;
  uikit::TouchInput input;
};

}  // namespace host::test
