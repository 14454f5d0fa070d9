#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

class ViewLayoutTest : public UIKitTest {
 protected:
  ViewLayoutTest() : view(RecordingView::make("view", {0, 0, 100, 100})) {
    window.addSubview(view);
    advance(0);
    layouts() = 0;
  }
  int& layouts() { return objc::state_of<RecordingView>(view).layouts; }

  TestRecordingView view;
};

TEST_F(ViewLayoutTest, HappensOnceAtTheEndOfTheTurn) {
  view.setNeedsLayout();
  view.setNeedsLayout();
  EXPECT_EQ(layouts(), 0);
  advance(0);
  EXPECT_EQ(layouts(), 1);
  advance(1);
  EXPECT_EQ(layouts(), 1);
}

TEST_F(ViewLayoutTest, HappensImmediatelyWhenRequested) {
  view.setNeedsLayout();
  view.layoutIfNeeded();
  EXPECT_EQ(layouts(), 1);
  view.layoutIfNeeded();
  EXPECT_EQ(layouts(), 1);
}

TEST_F(ViewLayoutTest, ANewSizeRequestsLayoutAndANewPlaceDoesNot) {
  view.setFrame({50, 50, 100, 100});
  advance(0);
  EXPECT_EQ(layouts(), 0);
  view.setFrame({50, 50, 120, 100});
  advance(0);
  EXPECT_EQ(layouts(), 1);
}

TEST_F(ViewLayoutTest, SubviewsFollowTheSizeByTheirMasks) {
  const UIView inner = UIView::alloc().initWithFrame({10, 10, 80, 80}).autorelease();
  inner.setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  view.addSubview(inner);
  view.setFrame({0, 0, 200, 300});
  EXPECT_EQ(inner.frame(), CGRect(10, 10, 180, 80));
  view.setAutoresizesSubviews(NO);
  view.setFrame({0, 0, 100, 100});
  EXPECT_EQ(inner.frame(), CGRect(10, 10, 180, 80));
}

}  // namespace
}  // namespace host::test
