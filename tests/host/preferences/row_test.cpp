#include "objc/autorelease_pool.h"
#include "tests/host/preferences/pane_test.h"

// Single rows of a pane, and their parts.

namespace host::test {
namespace {

constexpr NSInteger kSwitches = 1;
constexpr NSInteger kLooks = 2;
constexpr NSInteger kActions = 3;

class RowTest : public PaneTest {};

TEST_F(RowTest, OnlyRowsWithAnEffectAreHighlighted) {
  const auto highlights = [&](NSInteger row, NSInteger section) {
    return objc::send<BOOL>(pane, "tableView:shouldHighlightRowAtIndexPath:"_sel, pane.table(),
                            NSIndexPath::indexPathForRow(row, section));
  };
  EXPECT_FALSE(highlights(0, kSwitches));
  EXPECT_TRUE(highlights(0, kLooks)) << "it opens a page";
  EXPECT_TRUE(highlights(0, kActions)) << "it has an action";
}

TEST_F(RowTest, ARowMayHaveItsOwnHeight) {
  pane.specifierForID("More"_ns).setProperty(NSNumber::numberWithDouble(70), "height"_ns);
  pane.reload();
  advance(0.1);
  EXPECT_EQ(cell(1, kLooks).frame().size.height, 70);
  EXPECT_EQ(cell(0, kLooks).frame().size.height, 44);
}

TEST_F(RowTest, ASingleRowIsReloaded) {
  stored()["Enabled"] = objc::Ref<NSObject>::retain(NSNumber::numberWithBool(YES));
  pane.reloadSpecifier(pane.specifierForID("Enabled"_ns));
  EXPECT_TRUE(objc::cast<UISwitch>(cell(0, kSwitches).accessoryView()).isOn());
  EXPECT_EQ(times_made(), 1);
}

TEST_F(RowTest, AValueOfAnotherTypeIsOff) {
  stored()["Enabled"] = objc::Ref<NSObject>::retain(NSArray::array());
  pane.reloadSpecifier(pane.specifierForID("Enabled"_ns));
  EXPECT_FALSE(objc::cast<UISwitch>(cell(0, kSwitches).accessoryView()).isOn());
}

TEST_F(RowTest, AReplacedControlIsIgnored) {
  const UITableViewCell row = cell(0, kSwitches);
  const auto before = objc::Ref<UIControl>::retain(objc::cast<UIControl>(row.accessoryView()));
  const UISwitch other = UISwitch::alloc().init().autorelease();
  objc::send<>(row, "setControl:"_sel, UIControl(other));
  before->sendActionsForControlEvents(UIControlEventValueChanged);
  EXPECT_EQ(told(), Events{});
  other.sendActionsForControlEvents(UIControlEventValueChanged);
  EXPECT_EQ(told(), Events{"set Enabled"});
}

TEST_F(RowTest, ADetailMayBeAnyPage) {
  const auto row = TestPane::row(pane, "Plain"_ns, "PSLinkCell"_ns, "UIViewController");
  pane.setSpecifiers(NSArray::arrayWithObject(row));
  advance(0.1);
  EXPECT_EQ(pane.table().numberOfSections(), 1) << "rows without a group still get a section";
  tap_row(0, 0);
  EXPECT_STREQ(navigation.topViewController().title().UTF8String(), "Plain");
}

TEST_F(RowTest, APageKeepsItsOwnTitle) {
  const auto own = make("TestPane");
  own.setTitle("Own"_ns);
  own.setSpecifier(pane.specifierForID("More"_ns));
  EXPECT_STREQ(own.title().UTF8String(), "Own");
  const auto other = make("TestPane");
  other.setSpecifier(pane.specifierForID("More"_ns));
  EXPECT_STREQ(other.title().UTF8String(), "More");
}

TEST_F(RowTest, ATitleIsShownBesideItsValue) {
  stored()["Version"] = objc::Ref<NSObject>::retain("8.1"_ns);
  const auto row = TestPane::row(pane, "Version"_ns, "PSTitleValueCell"_ns, nullptr);
  pane.setSpecifiers(NSArray::arrayWithObject(row));
  advance(0.1);
  ASSERT_TRUE(cell(0, 0).detailTextLabel());
  EXPECT_STREQ(cell(0, 0).detailTextLabel().text().UTF8String(), "8.1");
}

TEST_F(RowTest, ItsTableForgetsAReleasedPage) {
  objc::Ref<UITableView> table;
  {
    const objc::AutoreleasePool pool;
    table = objc::Ref<UITableView>::retain(make("TestPane").table());
    EXPECT_TRUE(table->dataSource());
  }
  EXPECT_FALSE(table->dataSource());
  EXPECT_FALSE(table->delegate());
}

TEST_F(RowTest, APropertyIsRemoved) {
  const auto specifier = pane.specifierForID("More"_ns);
  specifier.setProperty("one"_ns, "key"_ns);
  EXPECT_TRUE(specifier.propertyForKey("key"_ns));
  specifier.setProperty(nil, "key"_ns);
  EXPECT_FALSE(specifier.propertyForKey("key"_ns));
}

TEST_F(RowTest, ValuesBeyondTheTitlesHaveNone) {
  const auto specifier = pane.specifierForID("Colour"_ns);
  specifier.setValues(NSArray::arrayWithObjects("a"_ns, "b"_ns, "c"_ns),
                      NSArray::arrayWithObjects("A"_ns, "B"_ns));
  EXPECT_EQ(specifier.values().count(), 3u);
  EXPECT_EQ(specifier.titleDictionary().count(), 2u);
}

TEST_F(RowTest, OnlyAButtonIsTinted) {
  const UITableViewCell button = cell(1, kActions);
  EXPECT_EQ(button.textLabel().textColor(), button.tintColor());
  EXPECT_EQ(cell(0, kActions).textLabel().textColor(), UIColor::blackColor());
}

TEST_F(RowTest, OnlyRowsWithAnEffectAreSelectedVisibly) {
  EXPECT_EQ(cell(0, kSwitches).selectionStyle(), UITableViewCellSelectionStyleNone);
  EXPECT_EQ(cell(0, kLooks).selectionStyle(), UITableViewCellSelectionStyleDefault);
  EXPECT_EQ(cell(1, kActions).selectionStyle(), UITableViewCellSelectionStyleDefault);
  tap_row(0, kLooks);
  EXPECT_EQ(cell(0, 0).selectionStyle(), UITableViewCellSelectionStyleDefault);
}

}  // namespace
}  // namespace host::test
