#include "host/browser/phone/page_input.h"

#include <gmock/gmock.h>

#include "tests/host/screen/written_input.h"

namespace {

using namespace host::browser;
using host::screen::PhoneBody;
using testing::ElementsAre;
using testing::IsEmpty;

struct PageInputs : testing::Test {
  CGPoint on_screen(double x, double y) const {
    return {body.screen().min_x() + x, body.screen().min_y() + y};
  }
  void point(PointerPhase phase, CGPoint at, int finger = 0, int clicks = 1) {
    page.take(PointerChange{finger, phase, clicks, at.x, at.y});
  }

  const PhoneBody body{{100, 200}};
  WrittenInput input;
  PageInput page{body, input};
};

TEST_F(PageInputs, SeveralFingersTouchTheScreenAtOnce) {
  point(PointerPhase::Down, on_screen(10, 20), 1);
  point(PointerPhase::Down, on_screen(50, 60), 2);
  point(PointerPhase::Moved, on_screen(11, 21), 1);
  point(PointerPhase::Up, on_screen(50, 60), 2);
  EXPECT_THAT(input.done, ElementsAre("touch 1 0 10 20", "touch 2 0 50 60", "touch 1 1 11 21",
                                      "touch 2 2 50 60"));
}

TEST_F(PageInputs, AFingerThatIsNotDownMovesNothing) {
  point(PointerPhase::Moved, on_screen(10, 20));
  point(PointerPhase::Up, on_screen(10, 20));
  EXPECT_THAT(input.done, IsEmpty());
}

TEST_F(PageInputs, TheBodysButtonsAreThere) {
  const CGRect home = body.frame_of(host::screen::Button::Home);
  const CGPoint middle{home.min_x() + home.size.width / 2, home.min_y() + home.size.height / 2};
  point(PointerPhase::Down, middle);
  point(PointerPhase::Up, middle);
  point(PointerPhase::Down, middle, 0, 2);
  EXPECT_THAT(input.done, ElementsAre("push 0", "let go 0", "press 1"));
}

TEST_F(PageInputs, KeysHoldButtonsOnce) {
  page.take(ButtonHeld{PageButton::Lock, true});
  page.take(ButtonHeld{PageButton::Lock, true});
  page.take(ButtonHeld{PageButton::Lock, false});
  page.take(ButtonHeld{PageButton::Lock, false});
  page.take(ButtonHeld{PageButton::HomeTouch, true});
  page.take(ButtonHeld{PageButton::HomeTouch, false});
  EXPECT_THAT(input.done, ElementsAre("push 2", "let go 2", "press 5"));
}

TEST_F(PageInputs, TextKeysWheelAndTheOtherButtonArePassedOn) {
  page.take(Typed{"ö"});
  page.take(Composed{"にほ", 2});
  page.take(Key{"control-left"});
  const CGPoint at = on_screen(10, 20);
  page.take(Wheel{false, at.x, at.y, 0, 1});
  page.take(Wheel{true, 0, 0, 0, 1});
  page.take(OtherButton{at.x, at.y});
  page.take(Shake{});
  EXPECT_THAT(input.done, ElementsAre("type ö", "compose にほ 2", "key control-left",
                                      "wheel 10 20 by 0 1 notches", "right click 10 20", "shake"));
}

TEST_F(PageInputs, APageThatGoesLetsGoOfEverything) {
  point(PointerPhase::Down, on_screen(10, 20), 1);
  point(PointerPhase::Moved, on_screen(30, 40), 1);
  page.take(ButtonHeld{PageButton::Home, true});
  input.done.clear();
  page.let_go();
  page.let_go();
  EXPECT_THAT(input.done, ElementsAre("touch 1 2 30 40", "let go 0"));
}

TEST_F(PageInputs, NoHandHasMoreFingersThanThere) {
  for (int finger = 0; finger < 1000; ++finger)
    point(PointerPhase::Down, on_screen(10, 20), finger);
  EXPECT_EQ(input.done.size(), 11u);
}

}  // namespace
