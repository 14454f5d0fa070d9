#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "host/foundation/device_paths.h"
#include "host/foundation/notifications.h"
#include "host/uikit/text/key_input.h"
#include "objc/field.h"
#include "platform/Foundation/NSBundle.h"
#include "platform/UIKit/UITextField.h"
#include "tests/host/preferences/pane_test.h"

// A pane as others write them: its rows are in a property list, its values in a file of
// preferences.

namespace host::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kList = R"({
  title = "Others";
  items = (
    { cell = PSGroupCell; label = "First"; footerText = "Below."; },
    { cell = PSSwitchCell; id = ENABLED; key = enabled; defaults = "com.example.others";
      label = "Enabled"; default = 1; PostNotification = "com.example.others/changed"; },
    { cell = PSLinkListCell; id = SIZE; key = size; defaults = "com.example.others"; default = 2;
      label = "Size"; validValues = (1, 2); validTitles = (Small, Large); },
    { cell = PSButtonCell; id = PRESS; label = "Press"; action = press; },
    { cell = PSTitleValueCell; label = "Own"; key = own; get = "ownValue:"; },
    { cell = PSGroupCell; },
    { cell = PSSliderCell; id = LEVEL; key = level; defaults = "com.example.others"; min = 10;
      max = 20; default = 15; },
    { cell = PSEditTextCell; id = NAME; key = name; defaults = "com.example.others";
      label = "Name"; placeholder = "None"; }
  );
})";

int pressed = 0;

NSArray own_specifiers(PSListController page) {
  if (const NSArray made = page.cached_specifiers()) return made;
  page.setSpecifiers(
      objc::send<NSArray>(page, "loadSpecifiersFromPlistName:target:"_sel, "Others"_ns, page));
  return page.cached_specifiers();
}

NSBundle own_bundle(PSListController) {
  return NSBundle::bundleWithPath("/Library/PreferenceBundles/Others.bundle"_ns);
}

void press_button(PSListController) {
  ++pressed;
}

NSString title_value(PSListController, PSSpecifier) {
  return "mine"_ns;
}

class StoredPane : public PaneTest {
 protected:
  StoredPane() : root_(fs::temp_directory_path() / ("pane-" + std::to_string(getpid()))) {
    fs::create_directories(bundle_folder());
    fs::create_directories(file().parent_path());
    std::ofstream(bundle_folder() / "Others.plist") << kList;
    foundation::set_device_root(root_.string());
    pressed = 0;
    if (!objc_getClass("OthersPane")) {
      objc::ClassBuilder("OthersPane", "PSListController")
          .method<&own_specifiers>("specifiers")
          .method<&own_bundle>("bundle")
          .method<&press_button>("press")
          .method<&title_value>("ownValue:")
          .finish();
    }
    others = make("OthersPane");
    navigation.pushViewController(others, NO);
    advance(1);
  }
  ~StoredPane() override {
    foundation::stop_observing_processes(this, "");
    foundation::set_device_root("");
    fs::remove_all(root_);
  }

  fs::path bundle_folder() const { return root_ / "Library/PreferenceBundles/Others.bundle"; }
  fs::path file() const {
    return root_ / "var/mobile/Library/Preferences/com.example.others.plist";
  }
  static NSDictionary saved() {
    return NSDictionary::dictionaryWithContentsOfFile(
        "/var/mobile/Library/Preferences/com.example.others.plist"_ns);
  }
  std::vector<std::string> labels() {
    std::vector<std::string> found;
    for (const UITableViewCell each : others.table().visibleCells().of<UITableViewCell>())
      if (each.textLabel().text()) found.emplace_back(each.textLabel().text().UTF8String());
    return found;
  }
  PSSpecifier row_named(NSString name) {
    return PSSpecifier::preferenceSpecifierNamed(name, others, nullptr, nullptr, nullptr,
                                                 PSTableCell::cellTypeFromString("PSLinkCell"_ns),
                                                 nullptr);
  }

  PSListController others;

 private:
  fs::path root_;
};

TEST_F(StoredPane, AListMakesTheRowsAndTheTitle) {
  EXPECT_STREQ(others.title().UTF8String(), "Others");
  EXPECT_EQ(labels(), (std::vector<std::string>{"Enabled", "Size", "Press", "Own", "Name"}));
  EXPECT_TRUE(shows(others.view(), "FIRST"_ns));
  EXPECT_TRUE(shows(others.view(), "Below."_ns));
  EXPECT_STREQ(cell(3, 0).detailTextLabel().text().UTF8String(), "mine");
  photograph("stored-pane", clock.now());
}

TEST_F(StoredPane, DefaultsAreShownUntilAValueIsStored) {
  EXPECT_TRUE(objc::cast<UISwitch>(cell(0, 0).accessoryView()).isOn());
  EXPECT_STREQ(cell(1, 0).detailTextLabel().text().UTF8String(), "Large");
  EXPECT_FALSE(fs::exists(file()));
}

TEST_F(StoredPane, ValuesAreKeptWithTheOthersOfTheFileAndAnnounced) {
  int announced = 0;
  foundation::observe_processes(this, "com.example.others/changed", [&] { ++announced; });
  std::ofstream(file()) << "{ other = kept; }";
  tap_switch(0, 0);
  ASSERT_TRUE(saved());
  EXPECT_FALSE(objc::cast<NSNumber>(saved().objectForKey("enabled"_ns)).boolValue());
  EXPECT_TRUE(objc::cast<NSString>(saved().objectForKey("other"_ns)).isEqualToString("kept"_ns));
  EXPECT_EQ(announced, 1);
  tap_row(1, 0);
  ASSERT_TRUE(shown().isKindOfClass(PSListItemsController::cls()));
  tap_row(0, 0);
  EXPECT_EQ(objc::cast<NSNumber>(saved().objectForKey("size"_ns)).intValue(), 1);
  EXPECT_EQ(announced, 1) << "that row names no notification";
}

TEST_F(StoredPane, AButtonSendsItsAction) {
  tap_row(2, 0);
  EXPECT_EQ(pressed, 1);
}

TEST_F(StoredPane, ASliderSetsItsValueWhenTheFingerIsLifted) {
  const UIView slider = cell(0, 1).accessoryView();
  const CGPoint middle = slider.convertPointToView({slider.bounds().size.width / 2, 20}, nil);
  const CGFloat length = slider.bounds().size.width - 28;
  press(middle);
  advance(0.3);
  move({middle.x + length / 10, middle.y});
  move({middle.x + length / 5, middle.y});
  EXPECT_FALSE(fs::exists(file()));
  lift({middle.x + length / 5, middle.y});
  ASSERT_TRUE(saved());
  EXPECT_NEAR(objc::cast<NSNumber>(saved().objectForKey("level"_ns)).doubleValue(), 17, 0.01);
  advance(0.1);
  photograph("stored-pane-slider", clock.now());
}

TEST_F(StoredPane, ATextIsSetWhenEditingEnds) {
  const UIView field = cell(1, 1).accessoryView();
  tap(field.convertPointToView({40, 20}, nil));
  advance(1);
  ASSERT_TRUE(objc::cast<UITextField>(field).isEditing());
  uikit::type_text("Ada"_ns);
  EXPECT_FALSE(fs::exists(file()));
  uikit::type_text("\n"_ns);
  advance(1);
  EXPECT_FALSE(objc::cast<UITextField>(field).isEditing());
  ASSERT_TRUE(saved());
  EXPECT_TRUE(objc::cast<NSString>(saved().objectForKey("name"_ns)).isEqualToString("Ada"_ns));
}

TEST_F(StoredPane, TheTargetAndTheMessagesAreVariables) {
  const PSSpecifier row = others.specifierForID("ENABLED"_ns);
  ASSERT_TRUE(row);
  EXPECT_EQ(*objc::field<objc::Id>(row, "target"), others.id());
  EXPECT_TRUE(sel_isEqual(*objc::field<objc::Sel>(row, "getter"), "readPreferenceValue:"_sel));
  EXPECT_TRUE(
      sel_isEqual(*objc::field<objc::Sel>(row, "setter"), "setPreferenceValue:specifier:"_sel));
  *objc::field<objc::Sel>(row, "getter") = "ownValue:"_sel;
  EXPECT_TRUE(objc::send<NSString>(row, "performGetter"_sel).isEqualToString("mine"_ns));
  const auto properties = objc::send<NSDictionary>(row, "properties"_sel);
  EXPECT_TRUE(
      objc::cast<NSString>(properties.objectForKey("key"_ns)).isEqualToString("enabled"_ns));
}

TEST_F(StoredPane, AReloadedRowShowsWhatTheFileHoldsNow) {
  std::ofstream(file()) << "{ enabled = 0; }";
  EXPECT_TRUE(objc::cast<UISwitch>(cell(0, 0).accessoryView()).isOn());
  objc::send<>(others, "reloadSpecifierID:"_sel, "ENABLED"_ns);
  EXPECT_FALSE(objc::cast<UISwitch>(cell(0, 0).accessoryView()).isOn());
}

TEST_F(StoredPane, RowsComeAndGoWithAnimation) {
  const PSSpecifier fresh = row_named("Fresh"_ns);
  const CGFloat before = cell(1, 0).center().y;
  objc::send<>(others, "insertSpecifier:afterSpecifierID:animated:"_sel, fresh, "ENABLED"_ns, YES);
  EXPECT_EQ(labels(),
            (std::vector<std::string>{"Enabled", "Fresh", "Size", "Press", "Own", "Name"}));
  EXPECT_TRUE(objc::send<BOOL>(others, "containsSpecifier:"_sel, fresh));
  advance(0.1);
  const auto moving = objc::send<CALayer>(cell(2, 0).layer(), "presentationLayer"_sel);
  EXPECT_GT(moving.position().y, before) << "the row below is on its way";
  EXPECT_LT(moving.position().y, before + cell(1, 0).bounds().size.height);
  advance(1);
  photograph("stored-pane-inserted", clock.now());
  objc::send<>(others, "removeSpecifierID:animated:"_sel, "Fresh"_ns, YES);
  advance(1);
  EXPECT_EQ(labels(), (std::vector<std::string>{"Enabled", "Size", "Press", "Own", "Name"}));
  EXPECT_EQ(cell(1, 0).center().y, before);
  objc::send<>(others, "insertSpecifier:atIndex:animated:"_sel, fresh, NSInteger{99}, NO);
  objc::send<>(others, "removeSpecifier:animated:"_sel, others.specifierForID("PRESS"_ns), NO);
  EXPECT_EQ(labels(), (std::vector<std::string>{"Enabled", "Size", "Own", "Name", "Fresh"}));
}

TEST_F(StoredPane, AListThatIsMissingIsAnEmptyPage) {
  const NSArray none =
      objc::send<NSArray>(others, "loadSpecifiersFromPlistName:target:"_sel, "Nothing"_ns, others);
  ASSERT_TRUE(none);
  EXPECT_EQ(none.count(), 0u);
}

}  // namespace
}  // namespace host::test
