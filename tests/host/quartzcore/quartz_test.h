#pragma once

#include <vector>

#include "host/quartzcore/service/exports.h"
#include "host/quartzcore/service/layer_service.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/CoreGraphics/CGColor.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/QuartzCore/CATransaction.h"
#include "platform/QuartzCore/CAValue.h"
#include "tests/support/host_test.h"

namespace host::test {

/// A process with layers, on a stepped clock.
class QuartzTest : public HostTest {
 public:
  QuartzTest() {
    quartzcore::export_quartzcore();
    service_.emplace(loop);
  }
  ~QuartzTest() override { service_.reset(); }

  void restart_service() {
    service_.reset();
    service_.emplace(loop);
  }

  static CALayer layer_at(CGRect frame) {
    const CALayer layer = CALayer::layer();
    layer.setFrame(frame);
    return layer;
  }
  static CGColorRef color(double red, double green, double blue, double alpha = 1) {
    CGColorRef made = CGColorCreateGenericRGB(red, green, blue, alpha);
    objc::send<objc::Id>(objc::Object(reinterpret_cast<objc::Id>(made)), "autorelease"_sel);
    return made;
  }

 private:
  std::optional<quartzcore::LayerService> service_;
};

/// A delegate for layers and animations that records its messages.
struct TestWatcher : objc::Bound<TestWatcher, "TestWatcher", NSObject> {
  static TestWatcher make();
};

class Watcher : public objc::Implementation<Watcher, TestWatcher> {
 public:
  explicit Watcher(TestWatcher owner) : Implementation(owner) {}

  int starts = 0;
  std::vector<bool> stops;
  std::vector<double> frames;

  void did_start(CAAnimation) { ++starts; }
  void did_stop(CAAnimation, BOOL finished) { stops.push_back(finished != NO); }
  void on_frame(objc::Object link) { frames.push_back(objc::send<double>(link, "timestamp"_sel)); }
};

inline TestWatcher TestWatcher::make() {
  if (!objc_getClass("TestWatcher")) {
    objc::ClassBuilder("TestWatcher", "NSObject")
        .state<Watcher>()
        .method<&Watcher::did_start>("animationDidStart:")
        .method<&Watcher::did_stop>("animationDidStop:finished:")
        .method<&Watcher::on_frame>("onFrame:")
        .finish();
  }
  return TestWatcher::alloc().init().autorelease();
}

inline Watcher& notes_of(TestWatcher watcher) {
  return objc::state_of<Watcher>(watcher);
}

}  // namespace host::test
