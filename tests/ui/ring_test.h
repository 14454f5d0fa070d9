#pragma once

#include <optional>

#include "host/quartzcore/service/exports.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/text/exports.h"
#include "objc/ref.h"
#include "platform/CoreGraphics/CGColor.h"
#include "tests/support/host_test.h"
#include "ui/M13ProgressViewRing.h"

namespace sonavue::test {

/// A process with views and layers on the stepped clock, and rings to test.
class RingTest : public host::test::HostTest {
 public:
  RingTest() {
    host::quartzcore::export_quartzcore();
    host::uikit::export_drawing();
    host::uikit::export_application();
    host::uikit::export_text();
    if (!M13ProgressViewRing::cls()) {
      make_progress_view();
      make_progress_view_ring();
    }
    service_.emplace(loop);
  }
  ~RingTest() override { service_.reset(); }

  /// A ring of `size` × `size` points, laid out and drawn.
  static M13ProgressViewRing ring_of(CGFloat size) {
    const M13ProgressViewRing ring = unseen_ring_of(size);
    show(ring);
    return ring;
  }
  /// A ring straight from its initializer, neither laid out nor drawn.
  static M13ProgressViewRing unseen_ring_of(CGFloat size) {
    return M13ProgressViewRing::alloc().initWithFrame({0, 0, size, size}).autorelease();
  }
  /// Lays out and draws now, as the end of the turn would.
  static void show(M13ProgressViewRing ring) {
    ring.layoutIfNeeded();
    ring.layer().displayIfNeeded();
  }

  static UIColor red() { return UIColor::redColor(); }
  static UIColor green() { return UIColor::greenColor(); }

 private:
  std::optional<host::quartzcore::LayerService> service_;
};

}  // namespace sonavue::test
