#include "objc/autorelease_pool.h"
#include "settings/texts.h"
#include "tests/settings/wizard_pages_test.h"

// How the wizard ends, and that nothing of it is left afterwards.

namespace sonavue::test {
namespace {

using WizardEnd = WizardPages;

TEST_F(WizardEnd, TheTutorialEndsTheWizard) {
  start_questions();
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  for (int number = 0; number < 4; ++number) {
    photograph("wizard-tutorial-" + std::to_string(number));
    if (number < 3) next_page();
  }
  ASSERT_TRUE(find(shown_page().view(), "Done"));
  tap_text("Done");
  advance(2);
  EXPECT_FALSE(page.presentedViewController() || stack.presentedViewController());
  EXPECT_EQ(stored(), "firstBoot = 1");
}

TEST_F(WizardEnd, ItCanStartAgainAfterItsEnd) {
  start_questions();
  objc::send<>(page, "dismissIntro"_sel);
  advance(2);
  tap_row("Guided setup");
  const UIViewController again = page.presentedViewController() ? page.presentedViewController()
                                                                : stack.presentedViewController();
  ASSERT_TRUE(again);
  EXPECT_TRUE(find(again.view(), "Sonavue"));
}

TEST_F(WizardEnd, TheWelcomePageIsReleasedWithItsLabels) {
  // A label retains its colour until it is deallocated.
  const UIColor color = UIColor::alloc().initWithWhite(0.5, 1);
  {
    const objc::AutoreleasePool pool;
    start();
    for (const UIView each : welcome.subviews().of<UIView>()) {
      if (each.isKindOfClass(UILabel::cls())) objc::cast<UILabel>(each).setTextColor(color);
    }
    drag_welcome(200);
    release_welcome(200);
    advance(4);
    objc::send<>(page, "dismissIntro"_sel);
    advance(2);
  }
  advance(4);
  EXPECT_EQ(color.retainCount(), 1u);
  color.release();
}

TEST_F(WizardEnd, TheQuestionsAreReleasedAtTheEnd) {
  // A label retains its colour until it is deallocated.
  const UIColor color = UIColor::alloc().initWithWhite(0.5, 1);
  {
    const objc::AutoreleasePool pool;
    start_questions();
    part<UILabel>("UILabel").setTextColor(color);
    objc::send<>(page, "dismissIntro"_sel);
    advance(2);
  }
  advance(4);
  EXPECT_EQ(color.retainCount(), 1u);
  color.release();
}

TEST_F(WizardEnd, TheListOfBlursIsReleasedAtTheEnd) {
  // The page's row also retains the text.
  NSString text;
  {
    const objc::AutoreleasePool pool;
    start();
    text = Translator("adaptive_light"_ns);
  }
  const NSUInteger keepers = text.retainCount();
  {
    const objc::AutoreleasePool pool;
    objc::send<>(page, "showSetup"_sel);
    EXPECT_GT(text.retainCount(), keepers);
    advance(2);
    objc::send<>(page, "dismissIntro"_sel);
    advance(4);
  }
  EXPECT_EQ(text.retainCount(), keepers);
}

}  // namespace
}  // namespace sonavue::test
