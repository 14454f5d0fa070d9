#pragma once

#include "host/uikit/drawing/exports.h"
#include "host/uikit/text_layout/exports.h"
#include "tests/support/host_test.h"

namespace host::test {

/// A process that can draw colours, images and text.
class DrawingTest : public HostTest {
 public:
  DrawingTest() {
    uikit::export_drawing();
    uikit::export_string_drawing();
  }
};

}  // namespace host::test
