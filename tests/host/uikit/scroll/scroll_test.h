#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/quartzcore/service/layer_service.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/scroll/exports.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/support/host_test.h"

namespace host::test {

/// A phone's screen with one empty window, fingers, and a record of the delegate messages.
class ScrollTest : public HostTest {
 public:
  static constexpr CGRect kScreen{0, 0, 375, 667};
  static constexpr double kReport = 1.0 / 60;

  ScrollTest() {
    uikit::export_drawing();
    uikit::export_application();
    uikit::export_text();
    uikit::export_scroll();
    layers.emplace(loop);
    window = UIWindow::alloc().initWithFrame(kScreen);
    window.setHidden(NO);
    events().clear();
  }
  ~ScrollTest() override {
    window.setHidden(YES);
    window.release();
    advance(0);
    layers.reset();
  }

  /// The delegate messages of this test, in order.
  static std::vector<std::string>& events() {
    static std::vector<std::string> told;
    return told;
  }
  /// The same without the many `didScroll` messages.
  static std::vector<std::string> milestones() {
    std::vector<std::string> told = events();
    std::erase(told, "didScroll");
    return told;
  }

  void press(CGPoint point) { input.began(0, point, clock.now()); }
  void lift(CGPoint point) { input.ended(0, point, clock.now()); }
  /// Moves the finger steadily, with one report per frame.
  void move(CGPoint from, CGPoint to, double seconds) {
    const int reports = std::max(1, static_cast<int>(seconds / kReport + 0.5));
    for (int report = 1; report <= reports; ++report) {
      advance(seconds / reports);
      const double share = static_cast<double>(report) / reports;
      input.moved(0, {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share},
                  clock.now());
    }
  }
  /// Presses, moves steadily, and pauses before lifting, so there is no fling.
  void drag_and_pause(CGPoint from, CGPoint to) {
    press(from);
    move(from, to, 0.3);
    advance(0.3);
    lift(to);
  }
  void fling(CGPoint from, CGPoint to, double seconds) {
    press(from);
    move(from, to, seconds);
    lift(to);
  }

 protected:
  std::optional<quartzcore::LayerService> layers;
  UIWindow window;
  uikit::TouchInput input;
};

}  // namespace host::test
