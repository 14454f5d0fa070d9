#include "host/screen/pointers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/screen/written_input.h"

namespace {

using namespace host::screen;
using testing::ElementsAre;
using testing::IsEmpty;

class PointersTest : public testing::Test {
 protected:
  CGPoint at(CGFloat x, CGFloat y) const {
    return {body_.screen().min_x() + x, body_.screen().min_y() + y};
  }
  CGPoint on(Button button) const { return body_.frame_of(button).centre(); }
  std::vector<std::string> done() { return std::exchange(input_.done, {}); }

  const PhoneBody body_{{375, 667}};
  WrittenInput input_;
  HeldButtons buttons_{input_};
  Pointers pointers_{body_, input_, buttons_};
};

TEST_F(PointersTest, AFingerOnTheScreenTouchesItAndMayLeaveIt) {
  pointers_.down(3, at(10, 20));
  pointers_.moved(3, at(-5, 20));
  pointers_.up(3, at(-8, 20));
  EXPECT_THAT(done(), ElementsAre("touch 3 0 10 20", "touch 3 1 -5 20", "touch 3 2 -8 20"));
}

TEST_F(PointersTest, OneThatSlidesInTouchesFromTheEdge) {
  pointers_.down(3, at(100, -20));
  pointers_.moved(3, at(100, -4));
  EXPECT_THAT(done(), IsEmpty());
  pointers_.moved(3, at(100, 15));
  EXPECT_THAT(done(), ElementsAre("touch 3 0 100 0", "touch 3 1 100 15"));
  pointers_.up(3, at(100, 40));
  EXPECT_THAT(done(), ElementsAre("touch 3 2 100 40"));
}

TEST_F(PointersTest, OneThatStaysOutsideTheScreenDoesNothing) {
  pointers_.down(3, at(100, -20));
  pointers_.moved(3, at(130, -20));
  pointers_.up(3, at(130, -20));
  EXPECT_THAT(done(), IsEmpty());
}

TEST_F(PointersTest, AButtonIsHeldUntilTheFingerIsLiftedAnywhere) {
  pointers_.down(3, on(Button::Lock));
  pointers_.moved(3, at(100, 100));
  EXPECT_THAT(done(), ElementsAre("push 2"));
  EXPECT_TRUE(buttons_.is_down(Button::Lock));
  pointers_.up(3, at(100, 100));
  EXPECT_THAT(done(), ElementsAre("let go 2"));
  EXPECT_FALSE(buttons_.is_down(Button::Lock));
}

TEST_F(PointersTest, TwoFingersHoldTwoButtons) {
  pointers_.down(1, on(Button::VolumeUp));
  pointers_.down(2, on(Button::VolumeDown));
  pointers_.up(1, on(Button::VolumeUp));
  pointers_.up(2, on(Button::VolumeDown));
  EXPECT_THAT(done(), ElementsAre("push 3", "push 4", "let go 3", "let go 4"));
}

TEST_F(PointersTest, AButtonHeldTwiceGoesDownOnce) {
  pointers_.down(1, on(Button::Home));
  buttons_.down(Button::Home);
  pointers_.up(1, on(Button::Home));
  EXPECT_THAT(done(), ElementsAre("push 0"));
  buttons_.up(Button::Home);
  buttons_.up(Button::Home);
  EXPECT_THAT(done(), ElementsAre("let go 0"));
}

TEST_F(PointersTest, TheSecondOfTwoQuickClicksOnHomeIsADoublePress) {
  pointers_.down(0, on(Button::Home), 1);
  pointers_.up(0, on(Button::Home));
  pointers_.down(0, on(Button::Home), 2);
  pointers_.up(0, on(Button::Home));
  EXPECT_THAT(done(), ElementsAre("push 0", "let go 0", "press 1"));
  pointers_.down(0, on(Button::Lock), 2);
  EXPECT_THAT(done(), ElementsAre("push 2"));
}

TEST_F(PointersTest, ARightClickTouchesHomeLightlyOrIsOneOnTheScreen) {
  pointers_.right_click(on(Button::Lock));
  EXPECT_THAT(done(), IsEmpty());
  pointers_.right_click(at(10, 10));
  EXPECT_THAT(done(), ElementsAre("right click 10 10"));
  pointers_.right_click(on(Button::Home));
  EXPECT_THAT(done(), ElementsAre("press 5"));
}

TEST_F(PointersTest, OneThatIsDownDoesNotGoDownAgain) {
  pointers_.down(0, at(10, 20));
  pointers_.down(0, on(Button::Lock));
  EXPECT_THAT(done(), ElementsAre("touch 0 0 10 20"));
}

}  // namespace
