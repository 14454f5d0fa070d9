#include "platform/UIKit/UIGraphics.h"
#include "tests/host/preferences/pane_test.h"

namespace host::test {
namespace {

constexpr NSInteger kSwitches = 1;
constexpr NSInteger kLooks = 2;
constexpr NSInteger kActions = 3;
constexpr CGPoint kBack{30, 42};

class ListControllerTest : public PaneTest {};

TEST_F(ListControllerTest, GroupsAreSectionsWithTheirTextsAndHeaders) {
  EXPECT_EQ(pane.table().numberOfSections(), 4);
  EXPECT_EQ(pane.table().numberOfRowsInSection(0), 0);
  EXPECT_EQ(pane.table().numberOfRowsInSection(kLooks), 2);
  EXPECT_EQ(pane.table().rectForHeaderInSection(0).size.height, 120);
  EXPECT_TRUE(shows(pane.view(), "Header"_ns));
  EXPECT_TRUE(shows(pane.view(), "What the switch does, in a few words."_ns));
  EXPECT_TRUE(shows(pane.view(), "LOOKS"_ns));
  photograph("pane", clock.now());
}

TEST_F(ListControllerTest, ASwitchShowsAndSetsTheValueOfItsSpecifier) {
  const auto control = objc::cast<UISwitch>(cell(0, kSwitches).accessoryView());
  EXPECT_FALSE(control.isOn()) << "it has never been set";
  tap_switch(0, kSwitches);
  EXPECT_EQ(told(), Events{"set Enabled"});
  EXPECT_TRUE(objc::cast<NSNumber>(stored()["Enabled"].get()).boolValue());
  tap_row(0, kSwitches);
  EXPECT_EQ(told(), Events{}) << "beside the switch nothing happens";
}

TEST_F(ListControllerTest, ReloadingRecreatesSpecifiersAndRevertsARefusedSwitch) {
  TestPane::refuses_values() = true;
  const auto control = objc::cast<UISwitch>(cell(0, kSwitches).accessoryView());
  tap_switch(0, kSwitches);
  EXPECT_TRUE(control.isOn());
  EXPECT_EQ(times_made(), 1);
  pane.reloadSpecifiers();
  advance(1);
  EXPECT_EQ(times_made(), 2);
  EXPECT_FALSE(objc::cast<UISwitch>(cell(0, kSwitches).accessoryView()).isOn());
}

TEST_F(ListControllerTest, AListOpensItsItemsAndStoresTheChoice) {
  tap_row(0, kLooks);
  ASSERT_TRUE(shown().isKindOfClass(PSListItemsController::cls()));
  EXPECT_STREQ(shown().title().UTF8String(), "Colour");
  EXPECT_EQ(shown().table().numberOfRowsInSection(0), 3);
  EXPECT_EQ(cell(1, 0).accessoryType(), UITableViewCellAccessoryNone);
  tap_row(1, 0);
  EXPECT_EQ(told(), Events{"set Colour"});
  EXPECT_STREQ(objc::cast<NSString>(stored()["Colour"].get()).UTF8String(), "green");
  EXPECT_EQ(cell(1, 0).accessoryType(), UITableViewCellAccessoryCheckmark);
  EXPECT_EQ(cell(0, 0).accessoryType(), UITableViewCellAccessoryNone);
  tap_row(2, 0);
  EXPECT_EQ(cell(1, 0).accessoryType(), UITableViewCellAccessoryNone);
  EXPECT_FALSE(shown().table().indexPathForSelectedRow());
  photograph("pane-items", clock.now());
  tap(kBack);
  advance(1);
  EXPECT_EQ(shown(), pane);
  EXPECT_STREQ(cell(0, kLooks).detailTextLabel().text().UTF8String(), "Blue");
  tap_row(0, kLooks);
  EXPECT_EQ(cell(2, 0).accessoryType(), UITableViewCellAccessoryCheckmark);
  EXPECT_EQ(cell(0, 0).accessoryType(), UITableViewCellAccessoryNone);
  tap(kBack);
  advance(1);
  EXPECT_FALSE(pane.table().indexPathForSelectedRow());
}

TEST_F(ListControllerTest, ALinkOpensItsDetailAndComingBackRecreatesNothing) {
  tap_row(1, kLooks);
  ASSERT_NE(shown(), pane);
  EXPECT_STREQ(shown().title().UTF8String(), "More");
  EXPECT_EQ(shown().parentController(), pane);
  EXPECT_EQ(times_made(), 2) << "the other pane's own";
  tap(kBack);
  advance(1);
  EXPECT_EQ(shown(), pane);
  EXPECT_EQ(times_made(), 2);
}

TEST_F(ListControllerTest, AnActionGoesToTheTargetWithItsArguments) {
  tap_row(0, kActions);
  tap_row(1, kActions);
  EXPECT_EQ(told(), (Events{"acted", "acted on Press"}));
  EXPECT_EQ(shown(), pane);
  EXPECT_FALSE(pane.table().indexPathForSelectedRow());
}

TEST_F(ListControllerTest, ASpecifierIsFoundByItsNameOrItsIdentifier) {
  EXPECT_TRUE(pane.specifierForID("Colour"_ns));
  pane.specifierForID("Colour"_ns).setIdentifier("tint"_ns);
  EXPECT_TRUE(pane.specifierForID("tint"_ns));
  EXPECT_FALSE(pane.specifierForID("Colour"_ns));
}

TEST_F(ListControllerTest, ASpecifierMayChooseItsCellsClass) {
  const auto specifier = pane.specifierForID("Enabled"_ns);
  specifier.setProperty(objc::Object(objc_getClass("TestPaneHeader")), "cellClass"_ns);
  pane.reload();
  advance(0.1);
  EXPECT_TRUE(cell(0, kSwitches).isKindOfClass(objc_getClass("TestPaneHeader")));
}

TEST_F(ListControllerTest, AnUnsuitableOrMissingClassIsIgnored) {
  const auto specifier = pane.specifierForID("Enabled"_ns);
  for (const objc::Object cls : {objc::Object("NoSuchClass"_ns), objc::Object("NSArray"_ns)}) {
    specifier.setProperty(cls, "cellClass"_ns);
    pane.reload();
    advance(0.1);
    EXPECT_TRUE(cell(0, kSwitches).isKindOfClass(PSSwitchTableCell::cls()));
  }
  const auto head = objc::cast<PSSpecifier>(pane.specifiers().firstObject());
  head.setProperty("NSArray"_ns, "headerCellClass"_ns);
  pane.setSpecifiers(NSArray::arrayWithArray(pane.specifiers()));
  advance(0.1);
  EXPECT_EQ(pane.table().rectForHeaderInSection(0).size.height, 35);
}

TEST_F(ListControllerTest, AnIconIsShownInItsRow) {
  UIGraphicsBeginImageContextWithOptions({29, 29}, YES, 2);
  const UIImage icon = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  pane.specifierForID("More"_ns).setProperty(icon, "iconImage"_ns);
  pane.reload();
  advance(0.1);
  EXPECT_EQ(cell(1, kLooks).imageView().image(), icon);
  EXPECT_EQ(cell(1, kLooks).textLabel().frame().origin.x, 59);
  EXPECT_FALSE(cell(0, kLooks).imageView().image());
}

TEST_F(ListControllerTest, CellTypesAreFoundByTheirNames) {
  EXPECT_EQ(PSTableCell::cellTypeFromString("PSGroupCell"_ns), 0);
  EXPECT_EQ(PSTableCell::cellTypeFromString("PSLinkCell"_ns), 1);
  EXPECT_EQ(PSTableCell::cellTypeFromString("PSSwitchCell"_ns), 6);
  EXPECT_EQ(PSTableCell::cellTypeFromString("PSButtonCell"_ns), 13);
  EXPECT_EQ(PSTableCell::cellTypeFromString("nonsense"_ns), 0);
  EXPECT_EQ(PSTableCell::cellTypeFromString(nil), 0);
}

}  // namespace
}  // namespace host::test
