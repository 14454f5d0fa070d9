#pragma once

#include "tests/tweak/panel_test.h"

namespace host::test {

/// The open panel on its first page while Alpha plays.
class ArtworkPage : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    play("Alpha");
    open_panel();
  }
  void double_tap_on_artwork() {
    tap_on(view("art"));
    advance(0.1);
    tap_on(view("art"));
  }
  /// Slides the playing album's table over the artwork.
  void show_table() {
    double_tap_on_artwork();
    settle();
    ASSERT_EQ(frame("blurTable").origin.x, 0);
  }
};

}  // namespace host::test
