#include "host/springboard/system/system_actions.h"
#include "tests/tweak/drag/drag_test.h"

namespace host::test {
namespace {

/// The invariants of each state of the panel, however it was reached.
class PanelState : public DragTest {
 protected:
  struct Held {
    bool twin_hidden;
    bool is_show;
    CGFloat container_alpha;
  };

  void expect(const char* state, Held held) {
    SCOPED_TRACE(state);
    EXPECT_EQ(view("music").isHidden(), held.twin_hidden ? YES : NO);
    EXPECT_EQ(is("isShow"), held.is_show);
    EXPECT_EQ(alpha("container"), held.container_alpha);
  }
  void expect_closed() {
    expect("closed", {true, false, 0});
    EXPECT_EQ(alpha("cover"), 0);
  }
  void expect_open() {
    expect("open", {false, true, 1});
    EXPECT_EQ(alpha("cover"), 1);
    EXPECT_TRUE(takes_touches());
  }
  bool takes_touches() const { return view("window").isUserInteractionEnabled() != NO; }

  void drag_out() {
    const bool took_touches = takes_touches();
    begin_drag();
    move_finger({finger().x, 0.7 * screen().height});
    expect("dragging out", {false, false, 0});
    EXPECT_THAT(alpha("cover"), IsNear(0.4));
    EXPECT_EQ(takes_touches(), took_touches);
    lift();
    expect("gliding", {false, false, 0});
    advance(0.3);
    expect("presenting", {false, false, 0});
    EXPECT_TRUE(takes_touches());
    EXPECT_EQ(alpha("cover"), 1);
    advance(0.6);
    expect("fading in", {false, false, 1});
    settle();
    expect_open();
  }
};
SONAVUE_ON_EVERY_SCREEN(PanelState);

TEST_P(PanelState, HoldsFromTheDragOutToTheClosing) {
  expect_closed();
  drag_out();
  springboard::press_home();
  expect("dismissing, the table", {false, true, view("container").alpha()});
  EXPECT_FALSE(takes_touches());
  advance(0.5);
  expect("dismissing, the content", {false, true, 0});
  EXPECT_EQ(alpha("cover"), 1);
  EXPECT_FALSE(takes_touches());
  advance(0.5);
  expect("dismissing, the icon", {false, true, 0});
  EXPECT_EQ(alpha("cover"), 0);
  settle();
  expect_closed();
  EXPECT_FALSE(takes_touches());
  drag_out();
}

TEST_P(PanelState, HoldsFromTheDragOutToTheDragBack) {
  drag_out();
  hold(middle_of(view("music")));
  move_by(0, 12);
  move_finger({finger().x, 0.7 * screen().height});
  advance(0.3);
  expect("dragging back", {false, true, 0});
  EXPECT_FALSE(takes_touches());
  EXPECT_THAT(alpha("cover"), IsNear(GetParam().in_dock ? 0.4 : 1));
  lift();
  advance(0.2);
  expect("closing", {false, true, 0});
  settle();
  expect_closed();
  EXPECT_FALSE(takes_touches());
  drag_out();
}

}  // namespace
}  // namespace host::test
