#include "objc/class_builder.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/UIKit/UITableView.h"
#include "tests/host/uikit/scroll/scroll_test.h"
#include "tests/support/photograph.h"

namespace host::test {
namespace {

struct TestGroups : objc::Bound<TestGroups, "TestGroups", NSObject> {};

/// Three groups: icons and links, one with texts at both ends, one plain row.
class Groups : public objc::Implementation<Groups, TestGroups> {
 public:
  using Implementation::Implementation;

  NSInteger sections(UITableView) { return 3; }
  NSInteger rows(UITableView, NSInteger section) { return section == 0 ? 3 : section == 1 ? 2 : 1; }
  NSString header(UITableView, NSInteger section) {
    return section == 1 ? "Appearance"_ns : NSString();
  }
  NSString footer(UITableView, NSInteger section) {
    return section == 1 ? "What stands below a group explains it, in as many words and on as many "
                          "lines as that takes."_ns
                        : NSString();
  }
  UITableViewCell cell(UITableView table, NSIndexPath path) {
    UITableViewCell cell = table.dequeueReusableCellWithIdentifier("row"_ns);
    if (!cell)
      cell = UITableViewCell::alloc()
                 .initWithStyle(UITableViewCellStyleValue1, "row"_ns)
                 .autorelease();
    cell.textLabel().setText("Row"_ns);
    if (path.section() == 0) {
      cell.imageView().setImage(icon());
      cell.detailTextLabel().setText("Value"_ns);
      cell.setAccessoryType(UITableViewCellAccessoryDisclosureIndicator);
    } else if (path.section() == 1 && path.row() == 0) {
      const auto control = UISwitch::alloc().initWithFrame({}).autorelease();
      control.setOn(YES);
      cell.setAccessoryView(control);
      cell.setSelectionStyle(UITableViewCellSelectionStyleNone);
    } else {
      cell.setAccessoryType(UITableViewCellAccessoryCheckmark);
    }
    return cell;
  }

  static UIImage icon() {
    UIGraphicsBeginImageContextWithOptions({29, 29}, NO, 2);
    UIColor::orangeColor().setFill();
    UIRectFill({0, 0, 29, 29});
    const UIImage icon = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return icon;
  }
};

class GroupedTable : public ScrollTest {
 protected:
  GroupedTable() {
    if (!TestGroups::cls()) {
      objc::ClassBuilder("TestGroups", "NSObject")
          .state<Groups>()
          .method<&Groups::sections>("numberOfSectionsInTableView:")
          .method<&Groups::rows>("tableView:numberOfRowsInSection:")
          .method<&Groups::header>("tableView:titleForHeaderInSection:")
          .method<&Groups::footer>("tableView:titleForFooterInSection:")
          .method<&Groups::cell>("tableView:cellForRowAtIndexPath:")
          .finish();
    }
    groups = TestGroups::alloc().init();
    table = UITableView::alloc().initWithFrame(kScreen, UITableViewStyleGrouped);
    table.setDataSource(groups);
    window.addSubview(table);
    advance(0.1);
  }
  ~GroupedTable() override {
    table.setDataSource(nil);
    table.removeFromSuperview();
    table.release();
    groups.release();
  }
  UITableViewCell cell(NSInteger row, NSInteger section) {
    return table.cellForRowAtIndexPath(NSIndexPath::indexPathForRow(row, section));
  }
  /// Returns the frames of a cell's visible hairlines: the line below the row first, then the line
  /// above it.
  static std::vector<CGRect> lines(UITableViewCell of) {
    of.layoutIfNeeded();
    std::vector<CGRect> found;
    for (const UIView part : of.subviews().of<UIView>())
      if (!part.isHidden() && CGRect(part.frame()).size.height <= 0.5)
        found.push_back(part.frame());
    return found;
  }

  TestGroups groups;
  UITableView table;
};

TEST_F(GroupedTable, IsOnGreyWithGapsBetweenItsGroups) {
  EXPECT_FALSE(table.backgroundColor().isEqual(UIColor::whiteColor()));
  EXPECT_EQ(table.rectForHeaderInSection(0).size.height, 35);
  EXPECT_EQ(table.rectForRowAtIndexPath(NSIndexPath::indexPathForRow(0, 0)).origin.y, 35);
  EXPECT_EQ(table.rectForFooterInSection(0).size.height, 17.5);
  EXPECT_EQ(table.rectForHeaderInSection(2).size.height, 17.5);
  photograph("grouped-table", clock.now());
}

TEST_F(GroupedTable, HeadersAndFootersAreAsTallAsTheirTexts) {
  EXPECT_GT(table.rectForHeaderInSection(1).size.height, 35);
  const double two_lines = table.rectForFooterInSection(1).size.height;
  EXPECT_GT(two_lines, 40);
  table.setFrame({0, 0, 200, 667});
  EXPECT_GT(table.rectForFooterInSection(1).size.height, two_lines + 20);
}

TEST_F(GroupedTable, LinesBeginBehindTheIconsAndSpanTheWidthAtTheGroupsEnds) {
  const auto first = lines(cell(0, 0));
  ASSERT_EQ(first.size(), 2u);
  EXPECT_EQ(first[0].origin.x, 15 + 29 + 15) << "between rows";
  EXPECT_EQ(first[1], (CGRect{0, 0, 375, 0.5})) << "above the group";
  const auto middle = lines(cell(1, 0));
  ASSERT_EQ(middle.size(), 1u);
  EXPECT_EQ(middle[0].origin.x, 59);
  EXPECT_EQ(lines(cell(2, 0)).back(), (CGRect{0, 43.5, 375, 0.5}));
  EXPECT_EQ(lines(cell(0, 1))[0].origin.x, 15) << "no icon";
  EXPECT_EQ(lines(cell(0, 2)).size(), 2u);
}

TEST_F(GroupedTable, ASwitchInARowTakesItsOwnTouches) {
  const auto control = objc::cast<UISwitch>(cell(0, 1).accessoryView());
  const CGPoint middle = control.convertPointToView({25, 15}, nil);
  press(middle);
  advance(0.05);
  lift(middle);
  EXPECT_FALSE(control.isOn());
  EXPECT_FALSE(table.indexPathForSelectedRow());
}

}  // namespace
}  // namespace host::test
