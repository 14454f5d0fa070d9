#include "host/runtime/device_model.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIScreen.h"
#include "settings/pictures.h"
#include "settings/texts.h"
#include "tests/settings/pages_test.h"

// Replaces the C library's function, so that nothing on the test machine is restarted.
extern "C" int system(const char* command) {
  sonavue::test::shell_commands().emplace_back(command);
  return 0;
}

namespace sonavue::test {
namespace {

class RootPage : public PagesTest {
 protected:
  void open_root() { open("SonavueSettingsController"); }
  static PSHeaderViewDelegate make_header() {
    const objc::Object cls(objc_getClass("HeaderCellForSonavue"));
    return objc::send<PSHeaderViewDelegate>(objc::send<NSObject>(cls, "alloc"_sel),
                                            "initWithSpecifier:"_sel, PSSpecifier())
        .autorelease();
  }
  /// The kinds and names of the page's rows.
  std::vector<std::string> names() const {
    std::vector<std::string> made;
    for (const PSSpecifier each : page.specifiers().of<PSSpecifier>())
      made.emplace_back(each.name() ? each.name().UTF8String() : "");
    return made;
  }
};

TEST_F(RootPage, HasASwitchAndTwoLinksBelowItsHeader) {
  open_root();
  EXPECT_THAT(names(),
              testing::ElementsAre("", "", "Enable Sonavue", "", "Configuration", "", "Contacts"));
  EXPECT_STREQ(page.navigationItem().title().UTF8String(), "Sonavue");
  for (const PSSpecifier each : page.specifiers().of<PSSpecifier>()) {
    if (each.name().length() > 0) {
      EXPECT_TRUE(each.propertyForKey("iconImage"_ns)) << each.name().UTF8String();
    }
  }
  EXPECT_TRUE(row("Enable Sonavue").isKindOfClass(objc_getClass("SRSwitchTableCell")));
  const UISwitch plain = UISwitch::alloc().init().autorelease();
  const UIColor tint = switch_of("Enable Sonavue").onTintColor();
  EXPECT_TRUE(tint && tint != plain.onTintColor());
  photograph("settings-root");
}

TEST_F(RootPage, TheFirstLaunchIsRecordedAndShowsTheWizard) {
  fs::remove(preferences());
  open_root();
  EXPECT_EQ(stored(), "firstBoot = 1");
  ASSERT_TRUE(page.presentedViewController() || stack.presentedViewController());
  EXPECT_TRUE(find(window, "Sonavue"));
  EXPECT_EQ(settings::where, page);
  photograph("wizard-welcome");
}

TEST_F(RootPage, TheSecondLaunchShowsNoWizard) {
  open_root();
  EXPECT_FALSE(page.presentedViewController());
  EXPECT_FALSE(stack.presentedViewController());
  EXPECT_EQ(stored(), "firstBoot = 1");
}

TEST_F(RootPage, AValueOfAnotherTypeCountsAsAFirstLaunch) {
  for (const std::string value : {"<array/>", "<dict/>", "<data>AAEC</data>", "<string>no</string>",
                                  "<date>2015-01-01T00:00:00Z</date>"}) {
    write_dictionary(preferences(), "<key>firstBoot</key>" + value + "<key>enable</key>" + value);
    open_root();
    EXPECT_TRUE(page.presentedViewController() || stack.presentedViewController()) << value;
    EXPECT_THAT(stored(), testing::HasSubstr("firstBoot = 1")) << value;
    objc::send<>(settings::where, "dismissViewControllerAnimated:completion:"_sel, BOOL{NO},
                 objc::Object());
    advance(1);
  }
}

TEST_F(RootPage, TablesWithoutTextsLeaveRowsWithoutNames) {
  write_dictionary(languages() / "en.plist", "<key>enable</key><array/><key>contacts</key><true/>" +
                                                 text_entry("configuration", "Configuration"));
  open_root();
  EXPECT_THAT(names(), testing::ElementsAre("", "", "(null)", "", "Configuration", "", "(null)"));
  tap_middle(switch_of("(null)"));
  EXPECT_THAT(stored(), testing::HasSubstr("(null) = 1"));
}

TEST_F(RootPage, TheFirstLaunchKeepsTheMarkOfChanges) {
  write_dictionary(preferences(), switch_entry("checked", true) + text_entry("tint", "red"));
  open_root();
  EXPECT_EQ(stored(), "checked = 1, firstBoot = 1, tint = red");
}

TEST_F(RootPage, TheSwitchWritesAndKeepsEverythingElse) {
  write_dictionary(preferences(), switch_entry("firstBoot", true) + text_entry("tint", "red") +
                                      switch_entry("checked", true));
  open_root();
  const UISwitch enable = switch_of("Enable Sonavue");
  EXPECT_FALSE(enable.isOn());
  tap_middle(enable);
  EXPECT_EQ(stored(), "checked = 0, enable = 1, firstBoot = 1, tint = red");
  EXPECT_TRUE(enable.isOn());
  tap_middle(enable);
  EXPECT_EQ(stored(), "checked = 0, enable = 0, firstBoot = 1, tint = red");
}

TEST_F(RootPage, ASubpageAndBackLeavesTheSpecifiersAsTheyWere) {
  open_root();
  const auto before = objc::Ref<NSArray>::retain(page.specifiers());
  tap_row("Contacts");
  EXPECT_TRUE(shown().isKindOfClass(objc_getClass("creatorsController")));
  stack.popViewControllerAnimated(YES);
  advance(1);
  EXPECT_EQ(shown(), page);
  EXPECT_EQ(page.specifiers(), before.get());
}

TEST_F(RootPage, ConfigurationIsTheStylePage) {
  open_root();
  tap_row("Configuration");
  EXPECT_TRUE(shown().isKindOfClass(objc_getClass("styleController")));
  EXPECT_EQ(settings::where, shown());
}

TEST_F(RootPage, TheHeaderHasAFixedHeightAndACentredLogo) {
  open_root();
  const PSHeaderViewDelegate header = make_header();
  for (const CGFloat width : {320.0, 375.0, 414.0, 768.0})
    EXPECT_EQ(header.preferredHeightForWidth(width), 184);
  const CGFloat width = UIScreen::mainScreen().bounds().size.width;
  UIView logo;
  UIView name;
  for (const UIView part : header.subviews().of<UIView>()) {
    if (part.isKindOfClass(UIImageView::cls())) logo = part;
    if (part.isKindOfClass(UILabel::cls())) name = part;
  }
  ASSERT_TRUE(logo && name);
  EXPECT_EQ(logo.frame(), (CGRect{(width - 130) / 2, 10, 130, 130}));
  EXPECT_EQ(name.frame(), (CGRect{0, 145, width, 50}));
  const auto title = objc::cast<UILabel>(name);
  EXPECT_STREQ(title.text().UTF8String(), "Sonavue2");
  EXPECT_STREQ(title.font().fontName().UTF8String(), "HelveticaNeue-UltraLight");
  EXPECT_EQ(title.font().pointSize(), 50);
  EXPECT_EQ(title.textColor(), UIColor::redColor());
  EXPECT_EQ(title.textAlignment(), NSTextAlignmentCenter);
  EXPECT_TRUE(objc::cast<UIImageView>(logo).image());
  EXPECT_TRUE(name.layer().mask()) << "it shimmers";
  EXPECT_EQ(objc::cast<UIView>(header).backgroundColor(), UIColor::clearColor());
}

TEST_F(RootPage, TheHeaderIsCentredOnEveryScreen) {
  open_root();
  const auto model = host::current_device();
  for (const auto& each : host::device_models()) {
    host::set_current_device(each);
    const CGFloat width = UIScreen::mainScreen().bounds().size.width;
    const auto header = objc::cast<UIView>(make_header());
    for (const UIView part : header.subviews().of<UIView>()) {
      if (part.isKindOfClass(UIImageView::cls()) || part.isKindOfClass(UILabel::cls())) {
        EXPECT_EQ(part.center().x, width / 2) << each.identifier;
      }
    }
  }
  host::set_current_device(model);
}

TEST_F(RootPage, TheShareButtonOpensTheComposer) {
  open_root();
  const UIBarButtonItem button = page.navigationItem().rightBarButtonItem();
  ASSERT_TRUE(button);
  EXPECT_EQ(button.image().renderingMode(), UIImageRenderingModeAlwaysTemplate);
  EXPECT_EQ(button.style(), UIBarButtonItemStyleBordered);
  objc::send<>(button.target(), button.action());
  advance(1);
  EXPECT_TRUE(page.presentedViewController() || stack.presentedViewController());
  EXPECT_TRUE(button.tintColor());
  EXPECT_TRUE(screen_says(Translator("tweet"_ns).UTF8String()));
  photograph("settings-share");
}

TEST_F(RootPage, WithoutTheFrameworkTheShareButtonDoesNothing) {
  host::set_device_images({});
  open_root();
  const UIBarButtonItem button = page.navigationItem().rightBarButtonItem();
  objc::send<>(button.target(), button.action());
  advance(1);
  EXPECT_FALSE(page.presentedViewController() || stack.presentedViewController());
}

TEST_F(RootPage, WithoutTextsEverythingIsNullAndStoredUnderNull) {
  fs::remove(languages() / "en.plist");
  open_root();
  EXPECT_THAT(names(), testing::Contains("(null)"));
  tap_middle(switch_of("(null)"));
  EXPECT_EQ(stored(), "(null) = 1, checked = 0, firstBoot = 1");
}

TEST_F(RootPage, APictureIsFoundByItsNameAndByItsFileName) {
  EXPECT_TRUE(imageFromFile("attivo"_ns));
  EXPECT_TRUE(imageFromFile("attivo@2x.png"_ns));
  EXPECT_FALSE(imageFromFile("nothing"_ns));
  fs::copy_file(pictures() / "attivo@2x.png", pictures() / "small.png");
  EXPECT_FALSE(imageFromFile("small"_ns)) << "only pictures for two pixels per point are found";
}

TEST_F(RootPage, WithoutPicturesThePagesStillWork) {
  fs::remove_all(pictures());
  fs::create_directories(languages());
  fs::copy_file(SONAVUE_ENGLISH_TEXTS, languages() / "en.plist");
  open_root();
  EXPECT_FALSE(row("Contacts").imageView().image());
  tap_middle(switch_of("Enable Sonavue"));
  EXPECT_EQ(stored(), "checked = 0, enable = 1, firstBoot = 1");
}

TEST_F(RootPage, TheConfigurationPageLeadsToTheStylePage) {
  open("configurationController");
  tap_row("Style");
  EXPECT_TRUE(shown().isKindOfClass(objc_getClass("styleController")));
}

}  // namespace
}  // namespace sonavue::test
