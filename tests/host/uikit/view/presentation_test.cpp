#include "objc/class_builder.h"
#include "platform/UIKit/UIViewController.h"
#include "tests/host/uikit/support/recording_view.h"
#include "tests/host/uikit/support/uikit_test.h"

namespace host::test {
namespace {

/// A controller that records the messages it gets, and fades in and out.
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

TEST_F(PresentationTest, AControllerMayComeAndGoInItsOwnWay) {
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

TEST_F(PresentationTest, APresentationGoesWithItsRoot) {
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
  EXPECT_EQ(told().size(), 4u) << "both are told that they disappear";
}

TEST_F(PresentationTest, APresentationGoesWithItsDismissedController) {
  const auto shown = make_fading();
  const auto shown_by_it = make_fading();
  root().presentViewController(shown.get(), NO, nullptr);
  shown->presentViewController(shown_by_it.get(), NO, nullptr);
  root().dismissViewControllerAnimated(YES, nullptr);
  advance(0.5);
  EXPECT_EQ(window.subviews().count(), 1u) << "the root's own view";
}

TEST_F(PresentationTest, AControllerDismissedOnItsWayNeverAppears) {
  const auto shown = make_fading();
  root().presentViewController(shown.get(), YES, nullptr);
  advance(0.1);
  root().dismissViewControllerAnimated(NO, nullptr);
  advance(1);
  EXPECT_EQ(told(), (Events{"will appear", "will disappear", "did disappear"}));
}

/// A page over another; each contains a view that records touches.
class TouchesInTransition : public PresentationTest {
 protected:
  TouchesInTransition() {
    fill(root(), "behind");
    fill(shown.get(), "front");
    told();
  }
  static void fill(UIViewController page, const char* name) {
    page.view().addSubview(RecordingView::make(name, kScreen));
  }
  Events after_tap() {
    told();
    tap(kPoint);
    return RecordingView::told_of_touches();
  }
  void expect_no_touches_on_its_way() {
    EXPECT_EQ(after_tap(), Events{});
    advance(0.3);
    EXPECT_EQ(after_tap(), Events{});
    advance(0.1);
  }
  void present() { root().presentViewController(shown.get(), YES, nullptr); }
  void dismiss() { root().dismissViewControllerAnimated(YES, nullptr); }

  static constexpr CGPoint kPoint{100, 300};
  const objc::Ref<UIViewController> shown =
      objc::Ref<UIViewController>::adopt(UIViewController::alloc().init());
};

TEST_F(TouchesInTransition, NeitherPageTakesTouchesWhileOneComes) {
  present();
  expect_no_touches_on_its_way();
  EXPECT_EQ(after_tap(), (Events{"front began", "front ended"}));
}

TEST_F(TouchesInTransition, NeitherPageTakesTouchesWhileOneGoes) {
  present();
  advance(1);
  dismiss();
  expect_no_touches_on_its_way();
  EXPECT_EQ(after_tap(), (Events{"behind began", "behind ended"}));
}

TEST_F(TouchesInTransition, PagesFurtherBehindTakeNoTouchesEither) {
  const auto last = make_fading();
  present();
  advance(1);
  shown->presentViewController(last.get(), YES, nullptr);
  EXPECT_EQ(after_tap(), Events{});
}

TEST_F(TouchesInTransition, AFingerThatIsDownIsCancelledForGood) {
  press(kPoint);
  advance(0.05);
  told();
  present();
  EXPECT_EQ(RecordingView::told_of_touches(), Events{"behind cancelled"});
  move({120, 320});
  advance(1);
  move({140, 320});
  lift({140, 320});
  EXPECT_EQ(RecordingView::told_of_touches(), Events{}) << "until it lands again";
  EXPECT_EQ(after_tap(), (Events{"front began", "front ended"}));
}

TEST_F(TouchesInTransition, ATransitionWithoutAnimationCancelsNothing) {
  root().presentViewController(shown.get(), NO, nullptr);
  EXPECT_EQ(after_tap(), (Events{"front began", "front ended"}));
  root().dismissViewControllerAnimated(NO, nullptr);
  EXPECT_EQ(after_tap(), (Events{"behind began", "behind ended"}));
}

TEST_F(TouchesInTransition, AnInterruptedTransitionEnablesTouchesAgain) {
  present();
  advance(0.1);
  dismiss();
  advance(0.1);
  window.setRootViewController(nil);
  const auto next = make_fading();
  fill(next.get(), "next");
  window.setRootViewController(next.get());
  advance(1);
  EXPECT_EQ(after_tap(), (Events{"next began", "next ended"}));
}

TEST_F(TouchesInTransition, ItsEndMayPresentTheNextAndTouchesWaitForThat) {
  const auto last = make_fading();
  fill(last.get(), "last");
  root().presentViewController(shown.get(), YES, objc::block([&] {
                                 shown->presentViewController(last.get(), YES, nullptr);
                               }));
  advance(0.5);
  EXPECT_EQ(after_tap(), Events{});
  advance(0.5);
  EXPECT_EQ(after_tap(), (Events{"last began", "last ended"}));
}

}  // namespace
}  // namespace host::test
