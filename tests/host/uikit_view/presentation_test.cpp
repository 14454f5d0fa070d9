#include "objc/class_builder.h"
#include "platform/UIKit/UIViewController.h"
#include "tests/host/uikit_view/uikit_test.h"

namespace host::test {
namespace {

/// A controller that says what it is told, and comes and goes by fading.
class FadingController : public objc::Implementation<FadingController, UIViewController> {
 public:
  using Implementation::Implementation;

  void will_appear(BOOL) { tell("will appear"); }
  void did_appear(BOOL) { tell("did appear"); }
  void will_disappear(BOOL) { tell("will disappear"); }
  void did_disappear(BOOL) { tell("did disappear"); }
  void place_off_screen(CGRect place) {
    self.view().setFrame(place);
    self.view().setAlpha(0);
  }
  void place_on_screen(CGRect) { self.view().setAlpha(1); }

 private:
  static void tell(const char* what) { UIKitTest::events().push_back(what); }
};

objc::Ref<UIViewController> make_fading() {
  if (!objc_getClass("TestFadingController")) {
    objc::ClassBuilder("TestFadingController", "UIViewController")
        .state<FadingController>()
        .method<&FadingController::will_appear>("viewWillAppear:")
        .method<&FadingController::did_appear>("viewDidAppear:")
        .method<&FadingController::will_disappear>("viewWillDisappear:")
        .method<&FadingController::did_disappear>("viewDidDisappear:")
        .method<&FadingController::place_off_screen>("_placeOffScreen:")
        .method<&FadingController::place_on_screen>("_placeOnScreen:")
        .finish();
  }
  const objc::Object cls(objc_getClass("TestFadingController"));
  return objc::Ref<UIViewController>::adopt(
      objc::send<UIViewController>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel));
}

class PresentationTest : public UIKitTest {
 protected:
  PresentationTest() {
    window.setRootViewController(UIViewController::alloc().init().autorelease());
  }
  ~PresentationTest() override { window.setRootViewController(nil); }

  UIViewController root() const { return window.rootViewController(); }
};

TEST_F(PresentationTest, AControllerMayComeAndGoInAWayOfItsOwn) {
  const auto shown = make_fading();
  root().presentViewController(shown.get(), YES, nullptr);
  EXPECT_EQ(shown->view().frame(), kScreen) << "not from below";
  EXPECT_EQ(shown->view().alpha(), 1);
  EXPECT_EQ(told(), Events{"will appear"});
  advance(0.5);
  EXPECT_EQ(told(), Events{"did appear"});
  root().dismissViewControllerAnimated(YES, nullptr);
  EXPECT_EQ(shown->view().frame(), kScreen);
  EXPECT_EQ(shown->view().alpha(), 0);
  EXPECT_TRUE(shown->view().window()) << "until it has faded";
  advance(0.5);
  EXPECT_FALSE(shown->view().window());
  EXPECT_EQ(told(), (Events{"will disappear", "did disappear"}));
}

TEST_F(PresentationTest, WhatARootPresentsGoesWithIt) {
  const auto shown = make_fading();
  const auto shown_by_it = make_fading();
  root().presentViewController(shown.get(), NO, nullptr);
  shown->presentViewController(shown_by_it.get(), NO, nullptr);
  EXPECT_EQ(window.subviews().count(), 3u);
  advance(0.1);
  told();
  window.setRootViewController(nil);
  EXPECT_EQ(window.subviews().count(), 0u);
  EXPECT_FALSE(shown->presentingViewController());
  EXPECT_FALSE(shown_by_it->presentingViewController());
  EXPECT_EQ(told().size(), 4u) << "both hear that they go";
}

TEST_F(PresentationTest, WhatADismissedControllerPresentsGoesWithIt) {
  const auto shown = make_fading();
  const auto shown_by_it = make_fading();
  root().presentViewController(shown.get(), NO, nullptr);
  shown->presentViewController(shown_by_it.get(), NO, nullptr);
  root().dismissViewControllerAnimated(YES, nullptr);
  advance(0.5);
  EXPECT_EQ(window.subviews().count(), 1u) << "the root's own view";
}

TEST_F(PresentationTest, WhatIsDismissedOnItsWayHasNeverAppeared) {
  const auto shown = make_fading();
  root().presentViewController(shown.get(), YES, nullptr);
  advance(0.1);
  root().dismissViewControllerAnimated(NO, nullptr);
  advance(1);
  EXPECT_EQ(told(), (Events{"will appear", "will disappear", "did disappear"}));
}

}  // namespace
}  // namespace host::test
