#include "host/runtime/device_model.h"
#include "host/uikit/application/application.h"
#include "host/uikit/geometry/window_list.h"
#include "platform/UIKit/UIDevice.h"
#include "platform/UIKit/UIViewController.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

int secure_questions = 0;
BOOL secure_answer = NO;

BOOL should_be_secure(UIWindow) {
  ++secure_questions;
  return secure_answer;
}

class WindowTest : public UIKitTest {
 protected:
  objc::Ref<UIWindow> make_window(UIWindowLevel level) {
    auto made = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame(kScreen));
    made->setWindowLevel(level);
    return made;
  }
};

TEST_F(WindowTest, IsHiddenUntilItIsShown) {
  const auto other = make_window(0);
  EXPECT_TRUE(other->isHidden());
  EXPECT_EQ(uikit::visible_windows(), std::vector<UIWindow>{window});
  other->setHidden(NO);
  EXPECT_EQ(uikit::visible_windows(), (std::vector<UIWindow>{window, other.get()}));
}

TEST_F(WindowTest, IsOrderedByLevelAndThenByWhenItWasShown) {
  const auto high = make_window(UIWindowLevelStatusBar + 527);
  const auto alert = make_window(UIWindowLevelAlert);
  const auto plain = make_window(UIWindowLevelNormal);
  alert->setHidden(NO);
  high->setHidden(NO);
  plain->setHidden(NO);
  EXPECT_EQ(uikit::visible_windows(),
            (std::vector<UIWindow>{window, plain.get(), high.get(), alert.get()}));
  window.makeKeyAndVisible();
  EXPECT_EQ(uikit::visible_windows()[1], window) << "to the front of its level";
  alert->setWindowLevel(-1);
  EXPECT_EQ(uikit::visible_windows()[0], alert.get());
}

TEST_F(WindowTest, IsForgottenWhenItIsReleased) {
  {
    const auto other = make_window(0);
    other->makeKeyAndVisible();
    EXPECT_EQ(uikit::key_window(), other.get());
  }
  EXPECT_EQ(uikit::visible_windows(), std::vector<UIWindow>{window});
  EXPECT_FALSE(uikit::key_window());
}

TEST_F(WindowTest, IsAskedOnceWhetherItIsSecureWhenFirstShown) {
  if (!objc_getClass("TestSecureWindow")) {
    objc::ClassBuilder("TestSecureWindow", "UIWindow")
        .method<&should_be_secure>("_shouldCreateContextAsSecure")
        .finish();
  }
  secure_questions = 0;
  secure_answer = YES;
  const objc::Object cls(objc_getClass("TestSecureWindow"));
  const auto made =
      objc::Ref<UIWindow>::adopt(objc::send<UIWindow>(cls, "alloc"_sel).initWithFrame(kScreen));
  EXPECT_EQ(secure_questions, 0);
  made->setHidden(NO);
  secure_answer = NO;
  made->setHidden(YES);
  made->setHidden(NO);
  EXPECT_EQ(secure_questions, 1);
  EXPECT_TRUE(made->_isSecure());
  EXPECT_FALSE(window._isSecure());
}

TEST_F(WindowTest, TheRootControllersViewFillsItBelowOtherViews) {
  const UIView present = add_view({0, 0, 10, 10});
  const auto controller = objc::Ref<UIViewController>::adopt(UIViewController::alloc().init());
  window.setRootViewController(controller.get());
  EXPECT_EQ(controller->view().frame(), kScreen);
  EXPECT_EQ(window.subviews().objectAtIndex(0), controller->view());
  EXPECT_EQ(window.subviews().objectAtIndex(1), present);
  window.setFrame({0, 0, 200, 300});
  EXPECT_EQ(controller->view().frame(), CGRect(0, 0, 200, 300));
  window.setRootViewController(nil);
  EXPECT_EQ(window.subviews().count(), 1u);
}

TEST_F(WindowTest, AControllerIsPresentedFromBelowAndDismissed) {
  const auto root = objc::Ref<UIViewController>::adopt(UIViewController::alloc().init());
  const auto shown = objc::Ref<UIViewController>::adopt(UIViewController::alloc().init());
  window.setRootViewController(root.get());
  int completions = 0;
  root->presentViewController(shown.get(), YES, objc::block([&] { ++completions; }));
  EXPECT_EQ(root->presentedViewController(), shown.get());
  EXPECT_EQ(shown->view().window(), window);
  EXPECT_EQ(completions, 0);
  advance(0.5);
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(shown->view().frame(), kScreen);
  shown->dismissViewControllerAnimated(YES, objc::block([&] { ++completions; }));
  advance(0.5);
  EXPECT_EQ(completions, 2);
  EXPECT_FALSE(shown->view().window());
  EXPECT_FALSE(root->presentedViewController());
  window.setRootViewController(nil);
}

void press_on_application(UIApplication) {
  UIKitTest::events().push_back("application pressed");
}
void launched(UIApplication self, objc::Object application) {
  UIKitTest::events().push_back(application == self ? "launched" : "launched by another");
}

class ApplicationTest : public WindowTest {
 protected:
  ApplicationTest() {
    if (!objc_getClass("TestApplication")) {
      objc::ClassBuilder("TestApplication", "UIApplication")
          .method<&launched>("applicationDidFinishLaunching:")
          .method<&press_on_application>("press")
          .finish();
    }
    application = uikit::launch_application("TestApplication");
  }
  ~ApplicationTest() override { application.release(); }

  UIApplication application;
};

TEST_F(ApplicationTest, IsSharedAndIsToldThatItHasLaunched) {
  EXPECT_EQ(UIApplication::sharedApplication(), application);
  EXPECT_EQ(told(), Events{"launched"});
  EXPECT_FALSE(uikit::launch_application("NoSuchApplication"));
}

TEST_F(ApplicationTest, AnActionWithoutATargetClimbsTheResponderChain) {
  told();
  const UIView view = add_view({0, 0, 10, 10});
  EXPECT_TRUE(application.sendAction("press"_sel, nil, view, nil));
  EXPECT_EQ(told(), Events{"application pressed"});
  EXPECT_FALSE(application.sendAction("nobodyKnowsThis"_sel, nil, view, nil));
}

TEST_F(ApplicationTest, TouchesPassThroughItUnlessItIgnoresThem) {
  const auto view = RecordingView::make("view", {0, 0, 100, 100});
  window.addSubview(view);
  told();
  application.beginIgnoringInteractionEvents();
  tap({50, 50});
  EXPECT_EQ(told(), Events{});
  application.endIgnoringInteractionEvents();
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

TEST_F(ApplicationTest, KnowsItsWindowsAndItsStatusBar) {
  EXPECT_EQ(application.windows().count(), 1u);
  window.makeKeyWindow();
  EXPECT_EQ(application.keyWindow(), window);
  EXPECT_EQ(application.statusBarHeight(), 20);
  EXPECT_EQ(UIScreen::mainScreen().applicationFrame(), CGRect(0, 20, 375, 647));
  application.setStatusBarHidden(YES);
  EXPECT_EQ(UIScreen::mainScreen().applicationFrame(), kScreen);
}

TEST_F(WindowTest, ScreenAndDeviceMatchTheChosenModel) {
  const DeviceModel before = current_device();
  set_current_device(*device_model("iPad4,1"));
  EXPECT_EQ(UIScreen::mainScreen().bounds(), CGRect(0, 0, 768, 1024));
  EXPECT_EQ(UIScreen::mainScreen().scale(), 2);
  EXPECT_STREQ(UIDevice::currentDevice().model().UTF8String(), "iPad");
  EXPECT_EQ(UIDevice::currentDevice().userInterfaceIdiom(), UIUserInterfaceIdiomPad);
  set_current_device(before);
  EXPECT_STREQ(UIDevice::currentDevice().model().UTF8String(), "iPhone");
  EXPECT_STREQ(UIDevice::currentDevice().systemVersion().UTF8String(), "8.1");
}

}  // namespace
}  // namespace host::test
