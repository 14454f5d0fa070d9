#include <cmath>

#include "platform/UIKit/UIPageControl.h"
#include "platform/UIKit/UIPickerView.h"
#include "settings/texts.h"
#include "tests/settings/wizard_pages_test.h"

namespace sonavue::test {
namespace {

TEST_F(WizardPages, TheWelcomePageIsLaidOutForTheScreen) {
  start();
  EXPECT_EQ(welcome.frame(), kScreen);
  const NSArray parts = welcome.subviews();
  ASSERT_EQ(parts.count(), 16u);
  const auto frame = [&](NSUInteger index) {
    return objc::cast<UIView>(parts.objectAtIndex(index)).frame();
  };
  EXPECT_EQ(frame(0), (CGRect{(375.0 - 130) / 2, 50, 130, 130}));
  EXPECT_EQ(frame(1), (CGRect{0, 205, 375, 50}));
  EXPECT_EQ(frame(2), (CGRect{15, 235, 345, 667.0 / 2}));
  EXPECT_EQ(objc::cast<UILabel>(parts.objectAtIndex(2)).numberOfLines(), 10);
  EXPECT_EQ(frame(3), (CGRect{65, 587, 20, 70}));
  const CGFloat kerning[] = {5, -3, -10, -10, -1, 4, -8, 5, -3, -2, -8, -2};
  CGFloat x = 85;
  for (NSUInteger letter = 0; letter < 12; ++letter) {
    x += kerning[letter];
    EXPECT_EQ(frame(4 + letter), (CGRect{x, 602, 15, 50})) << letter;
    x += 15;
  }
}

TEST_F(WizardPages, TheHintFadesLetterByLetterRepeatedly) {
  start();
  // The wave started with the tap on the row, a second ago.
  const auto alpha = [&](NSUInteger part) {
    return objc::cast<UIView>(welcome.subviews().objectAtIndex(3 + part))
        .layer()
        .presentationLayer()
        .opacity();
  };
  const auto faintest = [&](NSUInteger part) {
    float lowest = 1;
    for (int i = 0; i < 60; ++i) {
      advance(0.05);
      lowest = std::min(lowest, alpha(part));
    }
    return lowest;
  };
  EXPECT_LT(faintest(0), 0.1f);
  EXPECT_LT(faintest(12), 0.1f);
  EXPECT_LT(faintest(5), 0.1f) << "the wave repeats";
}

TEST_F(WizardPages, TheWaveRunsThroughTheHintInTime) {
  start();
  // The frame in which each part is invisible.
  const auto gone = [&](NSUInteger part) {
    float lowest = 1;
    double when = 0;
    const double end = clock.now() + kWave;
    while (clock.now() < end) {
      advance(1.0 / 60);
      const float now = objc::cast<UIView>(welcome.subviews().objectAtIndex(3 + part))
                            .layer()
                            .presentationLayer()
                            .opacity();
      if (now < lowest) {
        lowest = now;
        when = clock.now();
      }
    }
    return when;
  };
  const double first = gone(0);
  const double last = gone(12);
  const double first_again = gone(0);
  const double behind = std::fmod(last - first, kWave);
  EXPECT_NEAR(behind, 12 * 0.08, 0.05);
  EXPECT_NEAR(std::remainder(first_again - first, kWave), 0, 0.05);
}

TEST_F(WizardPages, TheQuestionsFadeInInASecond) {
  start();
  objc::send<>(page, "showSetup"_sel);
  advance(0.5);
  const UIView view = objc::cast<UIView>(main.view().subviews().lastObject());
  EXPECT_NEAR(view.layer().presentationLayer().opacity(), 0.5, 0.1);
  advance(0.6);
  EXPECT_EQ(view.layer().presentationLayer().opacity(), 1);
}

TEST_F(WizardPages, LessThanAQuarterSpringsBack) {
  start();
  drag_welcome(375.0 / 4 - 0.5);
  EXPECT_NEAR(welcome.frame().origin.x, 375.0 / 4 - 0.5, 1e-6);
  release_welcome(375.0 / 4 - 0.5);
  EXPECT_EQ(welcome.frame().origin.x, 0);
  EXPECT_EQ(main.view().subviews().count(), 1u);
}

TEST_F(WizardPages, AQuarterIsFarEnough) {
  start();
  drag_welcome(375.0 / 4);
  release_welcome(375.0 / 4);
  EXPECT_EQ(welcome.frame().origin.x, 375);
  EXPECT_EQ(main.view().subviews().count(), 2u);
}

TEST_F(WizardPages, APullToTheLeftMeetsResistance) {
  start();
  drag_welcome(-90);
  EXPECT_NEAR(welcome.frame().origin.x, -30, 1e-6);
  release_welcome(-90);
  EXPECT_EQ(welcome.frame().origin.x, 0);
}

TEST_F(WizardPages, EveryQuestionStoresItsOwnKey) {
  start_questions();
  const char* const switches[] = {"enable", "cloud", "cover", "square", "legibility"};
  for (const char* key : switches) {
    write_dictionary(preferences(), switch_entry("checked", true));
    const UIView row = part<UIView>("Switcher");
    ASSERT_TRUE(row) << key;
    EXPECT_EQ(row.frame().origin.y, 0.75 * 667);
    tap_middle(row);
    EXPECT_THAT(stored(), testing::HasSubstr(std::string(key) + " = 1"));
    EXPECT_THAT(stored(), testing::HasSubstr("checked = 0"));
    photograph(std::string("wizard-") + key);
    next_page();
  }
  EXPECT_TRUE(part<UIView>("Linker"));
  photograph("wizard-gesture-question");
  next_page();
  const char* const wheels[] = {"blur", "play", "tint", "font_tint"};
  const char* const second[] = {"light", "time", "white", "white"};
  for (int wheel = 0; wheel < 4; ++wheel) {
    write_dictionary(preferences(), "");
    const auto picker = part<UIPickerView>("UIPickerView");
    ASSERT_TRUE(picker) << wheels[wheel];
    EXPECT_EQ(picker.selectedRowInComponent(0), 0);
    EXPECT_EQ(stored(), "") << "nothing is written before the wheel turns";
    const objc::Object answers = picker.delegate();
    objc::send<>(answers, "pickerView:didSelectRow:inComponent:"_sel, picker, NSInteger{1},
                 NSInteger{0});
    EXPECT_THAT(stored(), testing::HasSubstr(std::string(wheels[wheel]) + " = " + second[wheel]));
    photograph(std::string("wizard-wheel-") + wheels[wheel]);
    next_page();
  }
  EXPECT_TRUE(find(shown_page().view(), "Tutorial"));
  photograph("wizard-ready");
  next_page();
  EXPECT_TRUE(find(shown_page().view(), "Tutorial")) << "there is no page after the last one";
}

TEST_F(WizardPages, WheelsShowTheTextsOfTheirChoices) {
  start_questions();
  const auto rows = [&](NSUInteger page_index) {
    objc::Object controller = questions.viewControllers().firstObject();
    for (NSUInteger i = 0; i < page_index; ++i)
      next_page();
    controller = shown_page();
    return part<UIPickerView>("UIPickerView").numberOfRowsInComponent(0);
  };
  EXPECT_EQ(rows(6), 13);
  EXPECT_EQ(rows(1), 2);
  EXPECT_EQ(rows(1), 12);
  const auto picker = part<UIPickerView>("UIPickerView");
  const auto title =
      objc::send<NSString>(picker.delegate(), "pickerView:titleForRow:forComponent:"_sel, picker,
                           NSInteger{7}, NSInteger{0});
  EXPECT_STREQ(title.UTF8String(), "Magenta");
  EXPECT_EQ(rows(1), 12);
}

TEST_F(WizardPages, EveryRowOfAWheelIsStoredAndNamed) {
  const std::vector<std::string> blurs = {
      "adaptive_light",  "light",         "dark",          "ultra_light", "light_low",
      "dark_low",        "ultra_dark",    "passcode",      "colored",     "semi_light",
      "flat_semi_light", "ultra_colored", "light_keyboard"};
  const std::vector<std::string> colors = {"black",  "white",  "gray",  "red",
                                           "green",  "blue",   "cyan",  "magenta",
                                           "orange", "purple", "brown", "clear"};
  const std::pair<const char*, std::vector<std::string>> wheels[] = {
      {"blur", blurs}, {"play", {"volume", "time"}}, {"tint", colors}, {"font_tint", colors}};
  start_questions();
  for (int i = 0; i < 6; ++i)
    next_page();
  for (const auto& [key, values] : wheels) {
    const auto picker = part<UIPickerView>("UIPickerView");
    const objc::Object source = picker.dataSource();
    EXPECT_EQ(source, picker.delegate());
    EXPECT_EQ(objc::send<NSInteger>(source, "numberOfComponentsInPickerView:"_sel, picker), 1);
    ASSERT_EQ(picker.numberOfRowsInComponent(0), static_cast<NSInteger>(values.size())) << key;
    for (std::size_t row = 0; row < values.size(); ++row) {
      fs::remove(preferences());
      objc::send<>(source, "pickerView:didSelectRow:inComponent:"_sel, picker,
                   static_cast<NSInteger>(row), NSInteger{0});
      const std::string mark = "checked = 0";
      const std::string written = std::string(key) + " = " + values[row];
      EXPECT_EQ(stored(), written < mark ? written + ", " + mark : mark + ", " + written);
      const auto title = objc::send<NSString>(source, "pickerView:titleForRow:forComponent:"_sel,
                                              picker, static_cast<NSInteger>(row), NSInteger{0});
      EXPECT_STREQ(title.UTF8String(),
                   Translator(NSString::stringWithUTF8String(values[row].c_str())).UTF8String());
    }
    next_page();
  }
}

TEST_F(WizardPages, TheTenthBlurIsSemiLight) {
  start_questions();
  const UIPickerView picker = UIPickerView::alloc().init().autorelease();
  objc::send<>(page, "pickerView:didSelectRow:inComponent:"_sel, picker, NSInteger{9},
               NSInteger{0});
  EXPECT_EQ(stored(), "blur = semi_light, checked = 0, firstBoot = 1");
}

TEST_F(WizardPages, TheGesturePageIsInsertedOnce) {
  start_questions();
  const auto count = [&] {
    return objc::send<NSInteger>(page, "presentationCountForPageViewController:"_sel, questions);
  };
  EXPECT_EQ(count(), 11);
  objc::send<>(page, "showActivatorPage"_sel);
  advance(1.5);
  EXPECT_EQ(count(), 12);
  EXPECT_TRUE(shown_page().isKindOfClass(objc_getClass("LAListenerSettingsViewController")));
  photograph("wizard-gesture-page");
  next_page();
  EXPECT_TRUE(part<UIView>("Linker")) << "the question comes after it now";
  objc::send<>(page, "showActivatorPage"_sel);
  advance(1.5);
  EXPECT_EQ(count(), 12);
  EXPECT_TRUE(shown_page().isKindOfClass(objc_getClass("LAListenerSettingsViewController")));
}

TEST_F(WizardPages, WithoutTheGestureServiceItsQuestionStays) {
  host::set_device_images({});
  start_questions();
  const UIViewController asked = shown_page();
  objc::send<>(page, "showActivatorPage"_sel);
  advance(1.5);
  EXPECT_EQ(shown_page(), asked);
  EXPECT_EQ(objc::send<NSInteger>(page, "presentationCountForPageViewController:"_sel, questions),
            11);
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  EXPECT_NE(shown_page(), asked);
}

TEST_F(WizardPages, TheGesturePageLeavesTheStatusBarFree) {
  start_questions();
  objc::send<>(page, "showActivatorPage"_sel);
  advance(1.5);
  const auto table = part<UITableView>("UITableView");
  ASSERT_TRUE(table);
  EXPECT_EQ(table.superview().convertRectToView(table.frame(), nil), (CGRect{0, 20, 375, 647}));
  const UIView name = find(table, "org.plumvane.Sonavue");
  ASSERT_TRUE(name);
  EXPECT_GE(name.convertPointToView({}, nil).y, 20);
  page_back();
  next_page();
  EXPECT_EQ(table.frame().size.height, 647) << "it does not shrink when it is shown again";
}

TEST_F(WizardPages, ASwipeBackLeadsToThePreviousPage) {
  start_questions();
  next_page();
  EXPECT_FALSE(find(shown_page().view(), "Enable Sonavue"));
  page_back();
  EXPECT_TRUE(find(shown_page().view(), "Enable Sonavue"));
  page_back();
  EXPECT_TRUE(find(shown_page().view(), "Enable Sonavue")) << "there is nothing before the first";
}

TEST_F(WizardPages, TheScreenStaysUpright) {
  start_questions();
  EXPECT_EQ(objc::send<NSUInteger>(page, "pageViewControllerSupportedInterfaceOrientations:"_sel,
                                   questions),
            2u);
  EXPECT_EQ(objc::send<NSInteger>(page, "presentationIndexForPageViewController:"_sel, questions),
            0);
  EXPECT_FALSE(objc::send<BOOL>(main, "shouldAutorotate"_sel));
  EXPECT_EQ(objc::send<NSUInteger>(main, "supportedInterfaceOrientations"_sel), 2u);
}

TEST_F(WizardPages, TheDotsAreHiddenAlthoughTheyAreCounted) {
  start_questions();
  int dots = 0;
  for (const UIView each : questions.view().subviews().of<UIView>()) {
    if (!each.isKindOfClass(UIPageControl::cls())) continue;
    ++dots;
    EXPECT_TRUE(each.isHidden());
  }
  EXPECT_EQ(dots, 1);
}

}  // namespace
}  // namespace sonavue::test
