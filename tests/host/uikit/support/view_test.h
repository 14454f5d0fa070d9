#pragma once

#include "host/uikit/application/exports.h"
#include "host/uikit/text/exports.h"
#include "tests/host/uikit/support/drawing_test.h"

namespace host::test {

/// A process with views, controls and text.
class TextViewTest : public DrawingTest {
 public:
  TextViewTest() {
    uikit::export_application();
    uikit::export_text();
  }
};

}  // namespace host::test
