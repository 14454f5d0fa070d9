#pragma once

#include "host/uikit/control/exports.h"
#include "host/uikit/gesture/exports.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/view/exports.h"
#include "tests/host/uikit_text/drawing_test.h"

namespace host::test {

/// A process that has views, controls and text.
class TextViewTest : public DrawingTest {
 public:
  TextViewTest() {
    uikit::export_views();
    uikit::export_gesture();
    uikit::export_control();
    uikit::export_text();
  }
};

}  // namespace host::test
