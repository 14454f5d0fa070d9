#include <algorithm>

#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/settings/credits_page_test.h"
#include "tests/settings/replaced_method.h"
#include "tests/settings/wizard_pages_test.h"

// Second taps and second touches while a page appears or disappears.

namespace sonavue::test {
namespace {

CGPoint middle(UIView view) {
  return view.convertPointToView(view.bounds().centre(), nil);
}

std::vector<std::string>& opened() {
  static std::vector<std::string> addresses;
  return addresses;
}
BOOL can_open(UIApplication, NSURL) {
  return YES;
}
BOOL open_address(UIApplication, NSURL url) {
  opened().emplace_back(url.absoluteString().UTF8String());
  return YES;
}

/// A view that records taps, behind the views that are shown over it.
class Behind {
 public:
  explicit Behind(UIView view)
      : target_(host::test::RecordingTarget::make("behind")),
        cover_(objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(view.bounds()))) {
    host::test::RecordingTarget::add<UITapGestureRecognizer>(*cover_, *target_);
    view.addSubview(*cover_);
  }
  ~Behind() { cover_->removeFromSuperview(); }
  static int taps() {
    const auto told = host::test::UIKitTest::told();
    return static_cast<int>(std::count(told.begin(), told.end(), "behind ended"));
  }

 private:
  objc::Ref<host::test::TestTarget> target_;
  objc::Ref<UIView> cover_;
};

class CardTransitions : public Credits {
 protected:
  CGPoint middle_of(std::string_view text) const {
    const UIView found = find(window, text);
    EXPECT_TRUE(found) << text;
    return found ? middle(found) : CGPoint();
  }
  void tap_twice(CGPoint place) {
    tap(place);
    advance(0.05);
    tap(place);
    advance(2);
  }
  void expect_card_that_closes() {
    ASSERT_TRUE(presented());
    EXPECT_EQ(stack.topViewController(), page) << "the page is still there under its card";
    tap(middle_of("Close"));
    advance(1);
    EXPECT_FALSE(presented());
    tap(kBack);
    advance(1);
    EXPECT_NE(stack.topViewController(), page);
  }
  void expect_first_page() {
    EXPECT_FALSE(presented());
    EXPECT_NE(stack.topViewController(), page);
    EXPECT_EQ(stack.viewControllers().count(), 1u);
  }
};

TEST_F(CardTransitions, BackIgnoresTouchesWhileACardAppears) {
  open_credits();
  tap(middle(author("developerCell")));
  advance(0.1);
  tap(kBack);
  advance(2);
  expect_card_that_closes();
}

TEST_F(CardTransitions, ACardCancelsATouchOnBack) {
  open_credits();
  press(kBack, 1);
  advance(0.05);
  tap(middle(author("developerCell")));
  advance(0.05);
  lift(kBack, 1);
  advance(2);
  expect_card_that_closes();
}

TEST_F(CardTransitions, BackCancelsATouchOnAnAuthor) {
  open_credits();
  const CGPoint place = middle(author("developerCell"));
  press(place, 1);
  advance(0.05);
  tap(kBack);
  advance(0.05);
  lift(place, 1);
  advance(2);
  expect_first_page();
}

TEST_F(CardTransitions, AnAuthorIgnoresTouchesWhileThePageLeaves) {
  open_credits();
  const CGPoint place = middle(author("developerCell"));
  tap(kBack);
  advance(0.1);
  tap(place);
  advance(2);
  expect_first_page();
}

TEST_F(CardTransitions, TwoTapsOnAnAuthorShowOneCard) {
  open_credits();
  tap_twice(middle(author("designerCell")));
  expect_card_that_closes();
}

TEST_F(CardTransitions, TwoTapsOnCloseCloseOneCard) {
  open_card("designerCell");
  const Behind behind(stack.view());
  tap_twice(middle_of("Close"));
  EXPECT_FALSE(presented());
  EXPECT_EQ(behind.taps(), 0);
}

TEST_F(CardTransitions, TwoTapsOnATileOpenItOnce) {
  const ReplacedMethod<&can_open> knows(objc_getClass("UIApplication"), "canOpenURL:");
  const ReplacedMethod<&open_address> opens(objc_getClass("UIApplication"), "openURL:");
  open_card("developerCell");
  opened().clear();
  const Behind behind(stack.view());
  tap_twice(middle_of("Tidepool"));
  EXPECT_EQ(opened().size(), 1u);
  EXPECT_EQ(behind.taps(), 0);
  EXPECT_FALSE(presented());
}

TEST_F(CardTransitions, OfTwoTouchesOnTilesTheFirstLiftedDecides) {
  const ReplacedMethod<&can_open> knows(objc_getClass("UIApplication"), "canOpenURL:");
  const ReplacedMethod<&open_address> opens(objc_getClass("UIApplication"), "openURL:");
  open_card("developerCell");
  opened().clear();
  const CGPoint tile = middle_of("Tidepool");
  const CGPoint other_tile = middle_of("Follow");
  press(tile, 0);
  press(other_tile, 1);
  advance(0.05);
  lift(tile, 0);
  lift(other_tile, 1);
  advance(2);
  EXPECT_THAT(opened(), testing::ElementsAre(testing::StartsWith("cydia://")));
  EXPECT_FALSE(presented());
}

TEST_F(CardTransitions, TheCardSurvivesTheRemovalOfItsPage) {
  open_card("developerCell");
  {
    const objc::AutoreleasePool pool;
    stack.popToRootViewControllerAnimated(NO);
  }
  advance(1);
  EXPECT_EQ(settings::where, page);
  tap(middle_of("Close"));
  advance(1);
  EXPECT_FALSE(stack.presentedViewController());
}

class WizardTransitions : public WizardPages {
 protected:
  UIViewController presented() const { return stack.presentedViewController(); }
  void expect_wizard_over_the_page() {
    ASSERT_TRUE(presented());
    EXPECT_EQ(stack.topViewController(), page);
    EXPECT_TRUE(find(presented().view(), "Sonavue"));
  }
};

TEST_F(WizardTransitions, BackIgnoresTouchesWhileTheWizardAppears) {
  open("styleController");
  tap(row("Guided setup").convertPointToView({60, 20}, nil));
  advance(0.1);
  tap(kBack);
  advance(2);
  expect_wizard_over_the_page();
}

TEST_F(WizardTransitions, BackIgnoresTouchesWhileTheFirstWizardAppearsWithItsPage) {
  open("creatorsController");
  write_dictionary(preferences(), "");
  const objc::Object cls(objc_getClass("SonavueSettingsController"));
  page = objc::send<PSListController>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel);
  stack.pushViewController(page, YES);
  page.release();
  advance(0.1);
  tap(kBack);
  advance(2);
  expect_wizard_over_the_page();
}

TEST_F(WizardTransitions, TheRestartQuestionCancelsATouchOnBack) {
  open("styleController");
  const CGPoint apex = middle(switch_of("Apex support"));
  press(kBack, 1);
  advance(0.05);
  tap(apex);
  advance(0.1);
  lift(kBack, 1);
  advance(1);
  EXPECT_EQ(stack.topViewController(), page);
  ASSERT_TRUE(tap_text("No"));
  advance(1);
  EXPECT_FALSE(switch_of("Apex support").isOn());
  tap(kBack);
  advance(1);
  EXPECT_NE(stack.topViewController(), page);
}

TEST_F(WizardTransitions, SetupBeforeBackWins) {
  open("styleController");
  const CGPoint setup = row("Guided setup").convertPointToView({60, 20}, nil);
  press(setup, 0);
  press(kBack, 1);
  advance(0.1);
  lift(setup, 0);
  lift(kBack, 1);
  advance(2);
  expect_wizard_over_the_page();
}

TEST_F(WizardTransitions, BackBeforeSetupWins) {
  open("styleController");
  const CGPoint setup = row("Guided setup").convertPointToView({60, 20}, nil);
  press(setup, 0);
  press(kBack, 1);
  advance(0.1);
  lift(kBack, 1);
  lift(setup, 0);
  advance(2);
  EXPECT_FALSE(presented());
  EXPECT_EQ(stack.viewControllers().count(), 1u);
}

TEST_F(WizardTransitions, TwoTapsOnDoneEndTheWizardOnce) {
  start_questions();
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  for (int number = 0; number < 3; ++number)
    next_page();
  const Behind behind(stack.view());
  const CGPoint done = middle(find(shown_page().view(), "Done"));
  tap(done);
  advance(0.05);
  tap(done);
  advance(2);
  EXPECT_FALSE(presented());
  EXPECT_EQ(behind.taps(), 0) << "no row below Done is tapped";
}

TEST_F(WizardTransitions, TheWizardSurvivesTheRemovalOfItsPage) {
  start_questions();
  {
    const objc::AutoreleasePool pool;
    stack.popToRootViewControllerAnimated(NO);
  }
  advance(1);
  EXPECT_EQ(settings::where, page);
  next_page();
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  for (int number = 0; number < 3; ++number)
    next_page();
  ASSERT_TRUE(find(shown_page().view(), "Done"));
  tap_text("Done");
  advance(2);
  EXPECT_FALSE(stack.presentedViewController());
}

}  // namespace
}  // namespace sonavue::test
