#include <gmock/gmock.h>

#include "host/uikit/geometry/window_list.h"
#include "platform/UIKit/UIAlertView.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

struct TestAlertListener : objc::Bound<TestAlertListener, "TestAlertListener", NSObject> {};

class AlertListener : public objc::Implementation<AlertListener, TestAlertListener> {
 public:
  using Implementation::Implementation;
  void clicked(UIAlertView, NSInteger index) { tell("clicked", index); }
  void dismissed(UIAlertView, NSInteger index) { tell("dismissed", index); }

 private:
  static void tell(const char* what, NSInteger index) {
    UIKitTest::events().push_back(std::string(what) + " " + std::to_string(index));
  }
};

class AlertTest : public PageTest {
 protected:
  AlertTest() {
    if (!TestAlertListener::cls()) {
      objc::ClassBuilder("TestAlertListener", "NSObject")
          .state<AlertListener>()
          .method<&AlertListener::clicked>("alertView:clickedButtonAtIndex:")
          .method<&AlertListener::dismissed>("alertView:didDismissWithButtonIndex:")
          .finish();
    }
    listener = objc::Ref<TestAlertListener>::adopt(TestAlertListener::alloc().init());
  }
  UIAlertView show(std::initializer_list<const char*> others) {
    const auto alert = UIAlertView::alloc().initWithTitle(
        "Restart"_ns, "Are you sure that the home screen may go and come again?"_ns, listener.get(),
        "No"_ns);
    for (const char* title : others)
      alert.addButtonWithTitle(NSString::stringWithUTF8String(title));
    alert.show();
    alert.release();
    advance(1);
    return alert;
  }
  static CGPoint middle_of_button(UIAlertView alert, NSInteger index) {
    for (const UIView part : alert.subviews().of<UIView>()) {
      if (part.isKindOfClass(UIControl::cls()) && part.tag() == index)
        return part.convertPointToView({part.bounds().size.width / 2, 22}, nil);
    }
    return {};
  }

  objc::Ref<TestAlertListener> listener;
};

TEST_F(AlertTest, IsCentredAboveEverything) {
  const auto alert = show({"Yes"});
  EXPECT_EQ(alert.window().windowLevel(), 2000);
  EXPECT_EQ(alert.center(), kScreen.centre());
  EXPECT_EQ(alert.bounds().size.width, 270);
  EXPECT_TRUE(shows(alert, "Restart"_ns));
  EXPECT_TRUE(shows(alert, "Yes"_ns));
  window.setBackgroundColor(UIColor::colorWithRed(0.3, 0.6, 0.9, 1));
  advance(0.1);
  photograph("alert", clock.now());
  tap(middle_of_button(alert, 0));
  advance(1);
}

TEST_F(AlertTest, AButtonReportsItsIndexAndDismissesTheAlert) {
  const auto alert = objc::Ref<UIAlertView>::retain(show({"Yes"}));
  tap(middle_of_button(alert.get(), 1));
  EXPECT_EQ(told(), Events{"clicked 1"});
  tap(middle_of_button(alert.get(), 0));
  advance(1);
  EXPECT_EQ(told(), Events{"dismissed 1"}) << "nothing is clicked on its way out";
  EXPECT_FALSE(alert->isVisible());
  EXPECT_EQ(uikit::visible_windows().size(), 1u);
}

TEST_F(AlertTest, OfTwoFingersOnButtonsTheFirstToLiftDecides) {
  const auto alert = show({"Yes"});
  const CGPoint no = middle_of_button(alert, 0);
  const CGPoint yes = middle_of_button(alert, 1);
  press(no, 0);
  press(yes, 1);
  advance(0.05);
  lift(yes, 1);
  lift(no, 0);
  advance(1);
  EXPECT_EQ(told(), (Events{"clicked 1", "dismissed 1"}));
}

TEST_F(AlertTest, ViewsBehindTakeNoTouches) {
  const auto alert = show({"Yes"});
  tap({20, 100});
  advance(1);
  EXPECT_TRUE(alert.isVisible());
  EXPECT_EQ(told(), Events{});
  alert.dismissWithClickedButtonIndex(0, NO);
  EXPECT_EQ(told(), Events{"dismissed 0"}) << "a dismissal by program is not a click";
}

TEST_F(AlertTest, CancelsTheFingersBehindIt) {
  const auto behind = RecordingView::make("behind", kScreen);
  window.addSubview(behind);
  press({20, 100});
  advance(0.1);
  told();
  const auto alert = show({"Yes"});
  lift({20, 100});
  EXPECT_EQ(RecordingView::told_of_touches(), Events{"behind cancelled"});
  alert.dismissWithClickedButtonIndex(0, NO);
}

TEST_F(AlertTest, TakesNoTouchesWhileFadingAndLetsNoneThrough) {
  const auto target = RecordingTarget::make("behind");
  const UIView behind = add_view(kScreen);
  RecordingTarget::add<UITapGestureRecognizer>(behind, target.get());
  const auto alert =
      UIAlertView::alloc().initWithTitle("Sure?"_ns, nil, listener.get(), "No"_ns).autorelease();
  alert.show();
  const CGPoint button{187, kScreen.centre().y + alert.bounds().size.height / 2 - 22};
  advance(0.1);
  tap(button);
  advance(1);
  EXPECT_TRUE(alert.isVisible());
  tap(button);
  advance(0.1);
  tap(button);
  tap({20, 100});
  advance(1);
  EXPECT_EQ(told(), (Events{"clicked 0", "dismissed 0"}));
  tap(button);
  EXPECT_EQ(told(), Events{"behind ended"});
}

TEST_F(AlertTest, CancelsTheFingersThatAreOnTheScreen) {
  const auto target = RecordingTarget::make("pan");
  RecordingTarget::add<UIPanGestureRecognizer>(add_view(kScreen), *target);
  press({50, 50});
  move({90, 50});
  told();
  const auto alert = show({"Yes"});
  EXPECT_EQ(told(), Events{"pan cancelled"});
  move({90, 90});
  lift({90, 90});
  EXPECT_EQ(told(), Events{});
  alert.dismissWithClickedButtonIndex(0, NO);
}

TEST_F(AlertTest, ManyButtonsAreStackedWithCancelLast) {
  const auto alert = show({"One", "Two"});
  EXPECT_LT(middle_of_button(alert, 1).y, middle_of_button(alert, 2).y);
  EXPECT_LT(middle_of_button(alert, 2).y, middle_of_button(alert, 0).y);
  photograph("alert-three", clock.now());
  alert.dismissWithClickedButtonIndex(0, NO);
}

// As compiled code sends it: every title of the list is a separate argument, and nil ends the list.
TEST_F(AlertTest, TakesAListOfOtherTitles) {
  using Init =
      objc::Id (*)(objc::Id, objc::Sel, objc::Id, objc::Id, objc::Id, objc::Id, objc::Id, ...);
  const objc::Sel selector =
      "initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:"_sel;
  const auto init_with = [&](auto... others) {
    const UIAlertView made = UIAlertView::alloc();
    const auto init = reinterpret_cast<Init>(objc_msg_lookup(made.id(), selector));
    const objc::Object alert(init(made.id(), selector, ("Title"_ns).id(), nullptr, nullptr,
                                  ("No"_ns).id(), others.id()...));
    return objc::Ref<UIAlertView>::adopt(objc::cast<UIAlertView>(alert));
  };
  const auto titles = [](const objc::Ref<UIAlertView>& alert) {
    std::vector<std::string> all;
    for (NSInteger index = 0; index < alert->numberOfButtons(); ++index)
      all.emplace_back(alert->buttonTitleAtIndex(index).UTF8String());
    return all;
  };
  using ::testing::ElementsAre;
  const NSString end;
  EXPECT_THAT(titles(init_with("One"_ns, "Two"_ns, "Three"_ns, end)),
              ElementsAre("No", "One", "Two", "Three"));
  EXPECT_THAT(titles(init_with("Yes"_ns, end)), ElementsAre("No", "Yes"));
  EXPECT_THAT(titles(init_with(end, "Never"_ns, end)), ElementsAre("No"));
}

TEST_F(AlertTest, OfTwoAlertsTheNewerIsShownFirst) {
  const auto first = show({"Yes"});
  const auto second = show({});
  EXPECT_TRUE(first.window().isHidden());
  tap(middle_of_button(second, 0));
  advance(1);
  EXPECT_FALSE(first.window().isHidden());
  tap(middle_of_button(first, 0));
  advance(1);
  EXPECT_THAT(told(),
              ::testing::ElementsAre("clicked 0", "dismissed 0", "clicked 0", "dismissed 0"));
  EXPECT_EQ(uikit::visible_windows().size(), 1u);
}

TEST_F(AlertTest, NeedsNoDelegate) {
  const auto alert = UIAlertView::alloc().initWithTitle(nil, "Text"_ns, nil, "OK"_ns);
  alert.show();
  alert.release();
  advance(1);
  tap(middle_of_button(alert, 0));
  advance(1);
  EXPECT_EQ(uikit::visible_windows().size(), 1u);
}

}  // namespace
}  // namespace host::test
