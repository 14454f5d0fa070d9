#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIPickerView.h"
#include "tests/settings/replaced_method.h"
#include "tests/settings/wizard_pages_test.h"

// The layout and look of the wizard.

namespace sonavue::test {
namespace {

constexpr CGRect kWholeText = {0, 30, 375, 517};
constexpr CGRect kChoiceText = {0, 50, 375, 210};
// A wheel always has the platform's height, whatever it is given.
constexpr CGRect kWheel = {0, 300, 375, 216};
constexpr CGRect kRow = {0, 0.75 * 667, 375, 45};
constexpr CGRect kLastRow = {0, 667.0 / 2 + 100, 375, 45};

/// The file names of the pictures that were requested, without their common folder.
std::vector<std::string>& pictures_asked_for() {
  static std::vector<std::string> names;
  return names;
}
UIImage note_picture(objc::Object, NSString path) {
  pictures_asked_for().push_back(fs::path(path.UTF8String()).filename().string());
  EXPECT_EQ(fs::path(path.UTF8String()).parent_path(), "/Library/Application Support/Sonavue");
  return nil;
}

class WizardLayout : public WizardPages {
 protected:
  static std::string font(UILabel label) {
    return std::string(label.font().fontName().UTF8String()) + " " +
           std::to_string(static_cast<int>(label.font().pointSize()));
  }
  void expect_text(CGRect frame, NSInteger lines = 10) const {
    const auto label = part<UILabel>("UILabel");
    ASSERT_TRUE(label);
    EXPECT_EQ(label.frame(), frame) << label.text().UTF8String();
    EXPECT_EQ(label.numberOfLines(), lines) << label.text().UTF8String();
    EXPECT_EQ(font(label), "HelveticaNeue-UltraLight 30");
    EXPECT_EQ(label.textAlignment(), NSTextAlignmentCenter);
    EXPECT_EQ(shown_page().view().backgroundColor(), UIColor::whiteColor());
  }
  void expect_row(const char* class_name, CGRect frame) const {
    const auto row = part<UIView>(class_name);
    ASSERT_TRUE(row);
    EXPECT_EQ(row.frame(), frame);
    EXPECT_EQ(row.layer().borderWidth(), 0.5);
  }
};

TEST_F(WizardLayout, QuestionsAreAboveTheirAnswers) {
  start_questions();
  for (int question = 0; question < 5; ++question, next_page()) {
    expect_text(kWholeText);
    expect_row("Switcher", kRow);
  }
  expect_text(kWholeText);
  expect_row("Linker", kRow);
  next_page();
  for (int question = 0; question < 4; ++question, next_page()) {
    expect_text(kChoiceText);
    EXPECT_EQ(part<UIView>("UIPickerView").frame(), kWheel);
  }
  expect_text({0, 100, 375, 210});
  expect_row("Linker", kLastRow);
}

TEST_F(WizardLayout, TheTutorialHasAPictureAndAWayOut) {
  start_questions();
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  expect_text({0, 80, 375, 210});
  const auto picture = part<UIImageView>("UIImageView");
  ASSERT_TRUE(picture && picture.image());
  EXPECT_EQ(picture.frame(), (CGRect{137.5, 667.0 / 2 + 60, 100, 100}));
  EXPECT_EQ(picture.layer().cornerRadius(), 30);
  EXPECT_TRUE(picture.layer().masksToBounds());
  next_page();
  expect_text({0, 30, 375, 607}, 20);
  next_page();
  expect_text({0, 30, 375, 607}, 20);
  next_page();
  expect_text(kWholeText, 20);
  expect_row("Linker", kLastRow);
}

TEST_F(WizardLayout, TheTutorialFadesInAndOutInASecondEach) {
  start_questions();
  const UIView view = questions.view();
  const auto opacity = [&] { return view.layer().presentationLayer().opacity(); };
  objc::send<>(page, "showTutorial"_sel);
  advance(0.5);
  EXPECT_NEAR(opacity(), 0.5, 0.1);
  EXPECT_TRUE(part<UIView>("Switcher")) << "the questions fade out before the tutorial fades in";
  advance(0.55);
  EXPECT_LT(opacity(), 0.2);
  advance(0.45);
  EXPECT_NEAR(opacity(), 0.5, 0.1);
  advance(0.6);
  EXPECT_EQ(opacity(), 1);
}

TEST_F(WizardLayout, TheWelcomePageHasItsLetters) {
  start();
  const NSArray parts = welcome.subviews();
  const auto label = [&](NSUInteger index) {
    return objc::cast<UILabel>(parts.objectAtIndex(index));
  };
  const auto logo = objc::cast<UIImageView>(parts.objectAtIndex(0));
  EXPECT_TRUE(logo.image());
  EXPECT_EQ(logo.contentMode(), UIViewContentModeScaleAspectFill);
  EXPECT_EQ(font(label(1)), "HelveticaNeue-UltraLight 55");
  EXPECT_EQ(label(1).textColor(), UIColor::redColor());
  EXPECT_EQ(font(label(2)), "HelveticaNeue-UltraLight 28");
  EXPECT_EQ(font(label(3)), "HelveticaNeue-UltraLight 80");
  std::string hint;
  for (NSUInteger index = 3; index < parts.count(); ++index) {
    hint += label(index).text().UTF8String();
    EXPECT_EQ(label(index).textColor(), UIColor::blackColor());
    EXPECT_EQ(label(index).textAlignment(), NSTextAlignmentCenter);
    if (index > 3) {
      EXPECT_EQ(font(label(index)), "HelveticaNeue-Light 25");
    }
  }
  EXPECT_EQ(hint, "›slidetosetup");
}

TEST_F(WizardLayout, EveryPageLoadsItsOwnPicture) {
  const ReplacedMethod<&note_picture> noted(objc_getMetaClass("UIImage"),
                                            "imageWithContentsOfFile:");
  const char* const arrow = "dir@2x.png";
  const char* const pattern = "pattern@2x.png";
  const auto asked = [] { return std::exchange(pictures_asked_for(), {}); };
  open("styleController");
  asked();
  objc::send<>(page, "showFirstPage"_sel);
  EXPECT_THAT(asked(), testing::ElementsAre("logo_setup.png"));
  advance(1);
  objc::send<>(page, "showSetup"_sel);
  EXPECT_THAT(asked(),
              testing::ElementsAre("attivo@2x.png", pattern, "Cloud.png", pattern, "Cover.png",
                                   pattern, "Squared.png", pattern, "auto.png", pattern,
                                   "Activator.png", arrow, "Finish@2x.png", arrow));
  advance(2);
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  EXPECT_THAT(asked(), testing::ElementsAre("tut1.png", "Finish@2x.png", arrow));
}

TEST_F(WizardLayout, TheGesturePageIsWhite) {
  start_questions();
  objc::send<>(page, "showActivatorPage"_sel);
  advance(1.5);
  EXPECT_EQ(shown_page().view().backgroundColor(), UIColor::whiteColor());
}

}  // namespace
}  // namespace sonavue::test
