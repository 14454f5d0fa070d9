#include "objc/class_builder.h"
#include "platform/UIKit/UIPageControl.h"
#include "tests/host/uikit/scroll/scroll_test.h"

namespace {

int changes = 0;
void count_change(objc::Object, objc::Object) {
  ++changes;
}

class PageControlTest : public host::test::ScrollTest {
 public:
  PageControlTest() {
    control = UIPageControl::alloc().initWithFrame({0, 600, 375, 37});
    control.setNumberOfPages(4);
    window.addSubview(control);
    advance(0.1);
  }
  ~PageControlTest() override {
    control.removeFromSuperview();
    control.release();
  }
  NSArray dots() { return control.layer().sublayers(); }

  UIPageControl control;
};

TEST_F(PageControlTest, ThereIsADotForEachPageCentredInTheRow) {
  ASSERT_EQ(dots().count(), 4u);
  const auto first = objc::cast<CALayer>(dots().firstObject());
  const auto last = objc::cast<CALayer>(dots().lastObject());
  EXPECT_NEAR(first.position().x + last.position().x, 375, 1);
  control.setNumberOfPages(2);
  EXPECT_EQ(dots().count(), 2u);
}

TEST_F(PageControlTest, TheCurrentPageIsClampedToThePages) {
  control.setCurrentPage(9);
  EXPECT_EQ(control.currentPage(), 3);
  control.setNumberOfPages(2);
  EXPECT_EQ(control.currentPage(), 1);
  control.setCurrentPage(-1);
  EXPECT_EQ(control.currentPage(), 0);
}

TEST_F(PageControlTest, TheCurrentDotHasItsOwnColour) {
  control.setCurrentPageIndicatorTintColor(UIColor::redColor());
  control.setCurrentPage(1);
  const auto current = objc::cast<CALayer>(dots().objectAtIndex(1));
  const UIColor shown = UIColor::colorWithCGColor(current.backgroundColor());
  EXPECT_EQ(shown.isEqual(UIColor::redColor()), YES);
}

TEST_F(PageControlTest, ASinglePageMayHideItsDot) {
  control.setNumberOfPages(1);
  EXPECT_EQ(dots().count(), 1u);
  control.setHidesForSinglePage(YES);
  EXPECT_EQ(dots().count(), 0u);
}

TEST_F(PageControlTest, ATapBesideTheCurrentDotTurnsOnePageAndSendsTheAction) {
  if (!objc_getClass("TestPageTarget"))
    objc::ClassBuilder("TestPageTarget", "NSObject").method<&count_change>("changed:").finish();
  const objc::Object cls(objc_getClass("TestPageTarget"));
  const auto target = objc::send<NSObject>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel);
  control.addTarget(target, "changed:"_sel, UIControlEventValueChanged);
  changes = 0;
  press({300, 618});
  lift({300, 618});
  EXPECT_EQ(control.currentPage(), 1);
  EXPECT_EQ(changes, 1);
  press({20, 618});
  lift({20, 618});
  press({20, 618});
  lift({20, 618});
  EXPECT_EQ(control.currentPage(), 0);
  EXPECT_EQ(changes, 2);
  target.release();
}

}  // namespace
