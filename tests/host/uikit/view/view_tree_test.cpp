#include "platform/UIKit/UITextField.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

using ViewTreeTest = UIKitTest;

std::vector<UIView> children(UIView view) {
  std::vector<UIView> found;
  for (const UIView child : view.subviews().of<UIView>())
    found.push_back(child);
  return found;
}

std::vector<CALayer> layers_of(UIView view) {
  std::vector<CALayer> found;
  for (const CALayer layer : view.layer().sublayers().of<CALayer>())
    found.push_back(layer);
  return found;
}

class FourViewsTest : public ViewTreeTest {
 protected:
  FourViewsTest() {
    parent = add_view({0, 0, 100, 100});
    for (UIView& view : views)
      view = UIView::alloc().initWithFrame({0, 0, 10, 10}).autorelease();
    parent.addSubview(views[0]);
    parent.addSubview(views[1]);
    parent.addSubview(views[2]);
  }
  void expect_order(std::vector<UIView> order) {
    EXPECT_EQ(children(parent), order);
    std::vector<CALayer> expected;
    for (const UIView view : order)
      expected.push_back(view.layer());
    EXPECT_EQ(layers_of(parent), expected);
  }

  UIView parent;
  UIView views[4];
};

TEST_F(FourViewsTest, SubviewsAreOneArrayUntilTheyChange) {
  auto& [a, b, c, d] = views;
  const NSArray before = parent.subviews();
  EXPECT_EQ(parent.subviews(), before);
  parent.addSubview(d);
  const NSArray four = parent.subviews();
  EXPECT_EQ(four.count(), 4u);
  parent.bringSubviewToFront(a);
  EXPECT_EQ(parent.subviews().lastObject(), a);
  b.removeFromSuperview();
  EXPECT_EQ(parent.subviews().count(), 3u);
  // Those that a caller walks through stay as they were.
  EXPECT_EQ(before.count(), 3u);
  EXPECT_EQ(four.firstObject(), a);
  EXPECT_EQ(four.lastObject(), d);
}

TEST_F(FourViewsTest, ACallerMayRemoveTheSubviewsThatItWalksThrough) {
  parent.subviews();
  for (const UIView child : parent.subviews().of<UIView>()) {
    const objc::AutoreleasePool pool;
    child.removeFromSuperview();
  }
  EXPECT_EQ(parent.subviews().count(), 0u);
}

TEST_F(FourViewsTest, ViewsAndTheirLayersAreInTheSameOrder) {
  auto& [a, b, c, d] = views;
  expect_order({a, b, c});
  parent.insertSubview(d, 1);
  expect_order({a, d, b, c});
  parent.bringSubviewToFront(a);
  expect_order({d, b, c, a});
  parent.sendSubviewToBack(c);
  expect_order({c, d, b, a});
  parent.insertSubviewAboveSubview(c, b);
  expect_order({d, b, c, a});
  parent.insertSubviewBelowSubview(a, d);
  expect_order({a, d, b, c});
  parent.exchangeSubviewAtIndex(0, 3);
  expect_order({c, d, b, a});
  parent.addSubview(c);
  expect_order({d, b, a, c});
}

TEST_F(FourViewsTest, AViewLeavesItsOldSuperview) {
  const UIView other = add_view({0, 0, 10, 10});
  other.addSubview(views[1]);
  expect_order({views[0], views[2]});
  EXPECT_EQ(views[1].superview(), other);
}

TEST_F(FourViewsTest, AViewIsNeverItsOwnAncestor) {
  views[0].addSubview(parent);
  EXPECT_EQ(parent.superview(), window);
  parent.addSubview(parent);
  expect_order({views[0], views[1], views[2]});
}

TEST_F(FourViewsTest, ViewsAreFoundByTagDownTheTree) {
  views[2].setTag(7);
  EXPECT_EQ(window.viewWithTag(7), views[2]);
  EXPECT_FALSE(window.viewWithTag(8));
}

TEST_F(ViewTreeTest, AViewIsToldWhenItEntersAndLeaves) {
  const auto view = RecordingView::make("view", {0, 0, 10, 10});
  window.addSubview(view);
  EXPECT_EQ(told(), (Events{"view will enter window", "view will enter view", "view entered window",
                            "view entered view"}));
  EXPECT_EQ(view.window(), window);
  view.removeFromSuperview();
  EXPECT_EQ(told(), (Events{"view will leave window", "view will leave view", "view left window",
                            "view left view"}));
  EXPECT_FALSE(view.window());
}

TEST_F(ViewTreeTest, ASuperviewRetainsItsSubviewsAndReleasesThem) {
  const UIView parent = UIView::alloc().initWithFrame({});
  const UIView child = UIView::alloc().initWithFrame({});
  const NSUInteger before = child.retainCount();
  parent.addSubview(child);
  EXPECT_EQ(child.retainCount(), before + 1);
  parent.release();
  EXPECT_EQ(child.retainCount(), before);
  EXPECT_FALSE(child.superview());
  child.release();
}

TEST_F(ViewTreeTest, AFirstResponderThatLeavesTheTreeResigns) {
  const UIView holder = add_view({0, 0, 100, 100});
  const UITextField field = UITextField::alloc().initWithFrame({0, 0, 50, 20}).autorelease();
  holder.addSubview(field);
  ASSERT_TRUE(field.becomeFirstResponder());
  holder.removeFromSuperview();
  EXPECT_FALSE(field.isFirstResponder());
}

}  // namespace
}  // namespace host::test
