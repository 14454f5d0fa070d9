#include "objc/ref.h"
#include "platform/Activator/LAListenerSettingsViewController.h"
#include "tests/settings/pages_test.h"
#include "tests/support/odd_preferences.h"

namespace sonavue::test {
namespace {

class StylePage : public PagesTest {
 protected:
  StylePage() { write_dictionary(preferences(), switch_entry("checked", true)); }
  void open_style() { open("styleController"); }
};

TEST_F(StylePage, ShowsEverySettingInOrder) {
  open_style();
  std::vector<std::string> rows;
  for (const PSSpecifier each : page.specifiers().of<PSSpecifier>()) {
    if (each.name() && each.name().length() > 0) {
      rows.emplace_back(each.name().UTF8String());
    } else {
      EXPECT_TRUE(each.propertyForKey("footerText"_ns)) << "a group explains the next row";
    }
  }
  EXPECT_THAT(rows, testing::ElementsAre("Guided setup", "Apex support", "Artwork as background",
                                         "Square artwork", "Music in the cloud", "Automatic colors",
                                         "Activator gesture", "Blur", "Play button ring",
                                         "Tint color", "Text color"));
  EXPECT_EQ(page.specifiers().count(), 22u);
  EXPECT_EQ(settings::where, page);
  photograph("settings-style");
}

TEST_F(StylePage, ItsRowsAreMadeOnce) {
  open_style();
  const auto rows = objc::Ref<NSArray>::retain(page.specifiers());
  EXPECT_EQ(page.specifiers(), rows.get());
}

TEST_F(StylePage, EverySwitchWritesItsOwnKey) {
  open_style();
  const std::pair<const char*, const char*> switches[] = {{"Artwork as background", "cover"},
                                                          {"Square artwork", "square"},
                                                          {"Music in the cloud", "cloud"},
                                                          {"Automatic colors", "legibility"}};
  for (const auto& [text, key] : switches) {
    write_dictionary(preferences(), switch_entry("checked", true));
    tap_middle(switch_of(text));
    EXPECT_EQ(stored(), key < std::string("checked") ? std::string(key) + " = 1, checked = 0"
                                                     : "checked = 0, " + std::string(key) + " = 1");
  }
}

TEST_F(StylePage, AListShowsTheTitleAndWritesTheValue) {
  write_dictionary(preferences(), text_entry("blur", "semi_light") + switch_entry("checked", true));
  open_style();
  EXPECT_EQ(detail(row("Blur")), "Half light");
  tap_row("Blur");
  photograph("settings-blur");
  tap_row("Ultra dark");
  EXPECT_EQ(stored(), "blur = ultra_dark, checked = 0");
  if (shown() != page) {
    stack.popViewControllerAnimated(YES);
    advance(1);
  }
  EXPECT_EQ(detail(row("Blur")), "Ultra dark");
}

TEST_F(StylePage, RingAndColoursAreListsToo) {
  open_style();
  const std::tuple<const char*, const char*, const char*> lists[] = {
      {"Play button ring", "Elapsed time", "checked = 0, play = time"},
      {"Tint color", "Magenta", "checked = 0, tint = magenta"},
      {"Text color", "Clear", "checked = 0, font_tint = clear"}};
  for (const auto& [list, choice, expected] : lists) {
    write_dictionary(preferences(), switch_entry("checked", true));
    tap_row(list);
    tap_row(choice);
    EXPECT_EQ(stored(), expected);
    if (shown() != page) stack.popViewControllerAnimated(NO);
    advance(1);
  }
}

TEST_F(StylePage, NoKeepsApexAndResetsTheSwitch) {
  open_style();
  tap_middle(switch_of("Apex support"));
  photograph("settings-apex-question");
  EXPECT_EQ(stored(), "checked = 1") << "nothing is written before the answer";
  EXPECT_TRUE(
      find(UIApplication::sharedApplication().windows().lastObject()
               ? objc::cast<UIView>(UIApplication::sharedApplication().windows().lastObject())
               : UIView(),
           "Apex Support"));
  ASSERT_TRUE(tap_text("No"));
  EXPECT_EQ(stored(), "checked = 1");
  EXPECT_FALSE(switch_of("Apex support").isOn());
  EXPECT_TRUE(shell_commands().empty());
}

TEST_F(StylePage, YesStoresApexKeepsTheMarkAndRestartsTheHomeScreen) {
  open_style();
  tap_middle(switch_of("Apex support"));
  ASSERT_TRUE(tap_text("Yes"));
  EXPECT_EQ(stored(), "apex = 1, checked = 1");
  EXPECT_THAT(shell_commands(), testing::ElementsAre("killall SpringBoard"));
}

TEST_F(StylePage, TheGesturePageNamesTheListenerWithoutItsNumber) {
  open_style();
  tap_row("Activator gesture");
  const auto over = objc::cast<UINavigationController>(page.presentedViewController()
                                                           ? page.presentedViewController()
                                                           : stack.presentedViewController());
  ASSERT_TRUE(over);
  const auto gestures = objc::cast<LAListenerSettingsViewController>(over.topViewController());
  EXPECT_STREQ(gestures.listenerName().UTF8String(), "org.plumvane.Sonavue");
  EXPECT_STREQ(gestures.title().UTF8String(), "Activator");
  EXPECT_EQ(gestures.navigationItem().rightBarButtonItem().style(), UIBarButtonItemStyleBordered);
  photograph("settings-gesture");
  ASSERT_TRUE(tap_text("Cancel"));
  EXPECT_FALSE(page.presentedViewController() || stack.presentedViewController());
}

TEST_F(StylePage, WithoutTheGestureServiceItsRowDoesNothing) {
  host::set_device_images({});
  open_style();
  EXPECT_FALSE(objc_getClass("LAListenerSettingsViewController"));
  tap_row("Activator gesture");
  EXPECT_FALSE(page.presentedViewController() || stack.presentedViewController());
}

TEST_F(StylePage, TheSetupRowShowsTheWizardOverIt) {
  write_dictionary(preferences(), switch_entry("firstBoot", true));
  open_style();
  tap_row("Guided setup");
  EXPECT_TRUE(page.presentedViewController() || stack.presentedViewController());
  EXPECT_EQ(settings::where, page);
  EXPECT_EQ(stored(), "firstBoot = 1");
}

TEST_F(StylePage, ValuesOfAnyTypeLeaveAPaneThatWorks) {
  for (const std::string& entries : host::test::odd_preferences()) {
    write_dictionary(preferences(), entries);
    open_style();
    photograph("settings-style-odd");
    for (const char* list : {"Blur", "Play button ring", "Tint color", "Text color"}) {
      tap_row(list);
      stack.popViewControllerAnimated(NO);
      advance(0.5);
    }
    const UISwitch square = switch_of("Square artwork");
    const bool was_on = square.isOn();
    tap_middle(square);
    EXPECT_THAT(stored(), testing::HasSubstr(was_on ? "square = 0" : "square = 1")) << entries;
    tap_row("Tint color");
    tap_row("Magenta");
    EXPECT_THAT(stored(), testing::HasSubstr("tint = magenta")) << entries;
    EXPECT_THAT(stored(), testing::HasSubstr("checked = 0")) << entries;
  }
}

}  // namespace
}  // namespace sonavue::test
