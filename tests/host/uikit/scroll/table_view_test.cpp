#include "platform/UIKit/UILabel.h"
#include "tests/host/uikit/scroll/table_listener.h"

namespace {

using Strings = std::vector<std::string>;

class TableViewTest : public host::test::TableTest {};

TEST_F(TableViewTest, OnlyRowsInSightHaveCells) {
  EXPECT_EQ(table.visibleCells().count(), 16u);
  EXPECT_EQ(source().cells_made, 16);
  EXPECT_TRUE(table.cellForRowAtIndexPath(row(15)));
  EXPECT_FALSE(table.cellForRowAtIndexPath(row(16)));
  EXPECT_EQ(table.contentSize(), (CGSize{375, 4400}));
}

TEST_F(TableViewTest, ScrollingReusesTheCellsThatLeave) {
  for (CGFloat offset = 0; offset < 3000; offset += 44) {
    table.setContentOffset({0, offset});
    advance(0.02);
  }
  EXPECT_LE(source().cells_made, 17);
  for (const UITableViewCell cell : table.visibleCells().of<UITableViewCell>())
    EXPECT_EQ(cell.frame().origin.y, static_cast<CGFloat>(cell.tag()) * 44);
}

TEST_F(TableViewTest, ADequeuedCellStaysAlive) {
  source().rows = {3};
  table.reloadData();
  advance(0.02);
  const UITableViewCell cell = table.dequeueReusableCellWithIdentifier("Cell"_ns);
  ASSERT_TRUE(cell);
  EXPECT_FALSE(table.dequeueReusableCellWithIdentifier("Another"_ns));
  table.removeFromSuperview();
  table.release();
  advance(0.1);
  EXPECT_EQ(cell.retainCount(), 1u);
  EXPECT_STREQ(cell.reuseIdentifier().UTF8String(), "Cell");
  table = UITableView();
}

TEST_F(TableViewTest, CellsTakeTheFrameOfTheirRow) {
  table.setRowHeight(60);
  advance(0.02);
  EXPECT_EQ(table.rectForRowAtIndexPath(row(3)), CGRect(0, 180, 375, 60));
  EXPECT_EQ(table.cellForRowAtIndexPath(row(3)).frame(), CGRect(0, 180, 375, 60));
}

TEST_F(TableViewTest, TheDelegateSetsTheHeightOfEachRow) {
  source().height = [](NSInteger number) { return number % 2 ? 50.0 : 30.0; };
  table.reloadData();
  EXPECT_EQ(table.rectForRowAtIndexPath(row(3)), CGRect(0, 110, 375, 50));
  EXPECT_EQ(table.indexPathForRowAtPoint({10, 159}).row(), 3);
  EXPECT_EQ(table.indexPathForRowAtPoint({10, 160}).row(), 4);
}

TEST_F(TableViewTest, AHundredThousandRowsAreMeasuredOnceAndCreatedAsTheyComeIntoSight) {
  source().rows = {100000};
  source().height = [](NSInteger number) { return number == 5 ? 70.0 : 35.0; };
  table.reloadData();
  EXPECT_EQ(source().heights_asked, 100000);
  table.scrollToRowAtIndexPath(row(99999), UITableViewScrollPositionBottom, NO);
  advance(0.1);
  EXPECT_TRUE(table.cellForRowAtIndexPath(row(99999)));
  EXPECT_EQ(source().heights_asked, 100000);
  EXPECT_LE(source().cells_made, 40);
}

TEST_F(TableViewTest, TheHeaderIsAboveTheFirstRowAndTheFooterBelowTheLast) {
  const UIView header = UIView::alloc().initWithFrame({0, 0, 100, 31});
  const UIView footer = UIView::alloc().initWithFrame({0, 0, 100, 50});
  table.setTableHeaderView(header);
  table.setTableFooterView(footer);
  advance(0.02);
  EXPECT_EQ(header.frame(), CGRect(0, 0, 375, 31));
  EXPECT_EQ(table.rectForRowAtIndexPath(row(0)).origin.y, 31);
  EXPECT_EQ(footer.frame(), CGRect(0, 31 + 4400, 375, 50));
  EXPECT_EQ(table.contentSize().height, 31 + 4400 + 50);
  table.setTableHeaderView(nil);
  EXPECT_FALSE(header.superview());
  EXPECT_EQ(table.rectForRowAtIndexPath(row(0)).origin.y, 0);
  header.release();
  footer.release();
}

TEST_F(TableViewTest, ATapSelectsARowAndTellsTheDelegateInOrder) {
  tap({100, 100});
  EXPECT_EQ(events(), (Strings{"willSelect 2", "didSelect 2"}));
  EXPECT_EQ(table.indexPathForSelectedRow().row(), 2);
  EXPECT_EQ(table.cellForRowAtIndexPath(row(2)).isSelected(), YES);
  events().clear();
  tap({100, 10});
  EXPECT_EQ(events(), (Strings{"willSelect 0", "willDeselect 2", "didDeselect 2", "didSelect 0"}));
  EXPECT_EQ(table.cellForRowAtIndexPath(row(2)).isSelected(), NO);
}

TEST_F(TableViewTest, ARefusedSelectionChangesNothing) {
  source().refuses_selection = true;
  tap({100, 100});
  EXPECT_EQ(events(), Strings{"willSelect 2"});
  EXPECT_FALSE(table.indexPathForSelectedRow());
  EXPECT_EQ(table.cellForRowAtIndexPath(row(2)).isHighlighted(), NO);
}

TEST_F(TableViewTest, ARowIsHighlightedAfterAMomentUntilItIsDragged) {
  press({100, 100});
  advance(0.1);
  EXPECT_EQ(table.cellForRowAtIndexPath(row(2)).isHighlighted(), NO);
  advance(0.1);
  EXPECT_EQ(table.cellForRowAtIndexPath(row(2)).isHighlighted(), YES);
  move({100, 100}, {100, 60}, 0.1);
  EXPECT_EQ(table.cellForRowAtIndexPath(row(2)).isHighlighted(), NO);
  lift({100, 60});
  EXPECT_TRUE(events().empty());
}

TEST_F(TableViewTest, WithoutSelectionATapDoesNothing) {
  table.setAllowsSelection(NO);
  tap({100, 100});
  EXPECT_TRUE(events().empty());
}

TEST_F(TableViewTest, SelectingByProgramTellsNoDelegateAndScrollsOnlyOnRequest) {
  table.selectRowAtIndexPath(row(50), NO, UITableViewScrollPositionNone);
  EXPECT_EQ(table.contentOffset().y, 0);
  EXPECT_EQ(table.indexPathForSelectedRow().row(), 50);
  table.selectRowAtIndexPath(row(60), NO, UITableViewScrollPositionTop);
  EXPECT_EQ(table.contentOffset().y, 60 * 44);
  EXPECT_TRUE(events().empty());
  advance(0.02);
  EXPECT_EQ(table.cellForRowAtIndexPath(row(60)).isSelected(), YES);
  table.deselectRowAtIndexPath(row(60), NO);
  EXPECT_FALSE(table.indexPathForSelectedRow());
  EXPECT_EQ(table.cellForRowAtIndexPath(row(60)).isSelected(), NO);
}

TEST_F(TableViewTest, ARowOutsideTheTableIsNeverSelected) {
  table.selectRowAtIndexPath(row(-1), NO, UITableViewScrollPositionTop);
  table.selectRowAtIndexPath(row(100), NO, UITableViewScrollPositionTop);
  EXPECT_FALSE(table.indexPathForSelectedRow());
}

TEST_F(TableViewTest, ReloadingForgetsTheSelection) {
  table.selectRowAtIndexPath(row(1), NO, UITableViewScrollPositionNone);
  table.reloadData();
  EXPECT_FALSE(table.indexPathForSelectedRow());
}

TEST_F(TableViewTest, ASelectedRowIsStillSelectedWhenItComesBackIntoSight) {
  table.selectRowAtIndexPath(row(1), NO, UITableViewScrollPositionNone);
  table.setContentOffset({0, 2000});
  advance(0.02);
  for (const UITableViewCell cell : table.visibleCells().of<UITableViewCell>())
    EXPECT_EQ(cell.isSelected(), NO);
  table.setContentOffset({0, 0});
  advance(0.02);
  EXPECT_EQ(table.cellForRowAtIndexPath(row(1)).isSelected(), YES);
}

TEST_F(TableViewTest, ReloadingShowsOtherRows) {
  source().rows = {3};
  table.reloadData();
  EXPECT_EQ(table.numberOfRowsInSection(0), 3);
  EXPECT_EQ(table.contentSize().height, 132);
  EXPECT_EQ(table.visibleCells().count(), 3u);
  source().rows = {0};
  table.reloadData();
  EXPECT_EQ(table.visibleCells().count(), 0u);
  EXPECT_FALSE(table.indexPathForRowAtPoint({10, 10}));
}

TEST_F(TableViewTest, ScrollToRowPutsItWhereRequestedAndClampsToTheEnds) {
  table.scrollToRowAtIndexPath(row(50), UITableViewScrollPositionTop, NO);
  EXPECT_EQ(table.contentOffset().y, 2200);
  table.scrollToRowAtIndexPath(row(50), UITableViewScrollPositionBottom, NO);
  EXPECT_EQ(table.contentOffset().y, 2200 + 44 - 667);
  table.scrollToRowAtIndexPath(row(50), UITableViewScrollPositionMiddle, NO);
  EXPECT_EQ(table.contentOffset().y, 2200 - (667 - 44) / 2.0);
  table.scrollToRowAtIndexPath(row(99), UITableViewScrollPositionTop, NO);
  EXPECT_EQ(table.contentOffset().y, 4400 - 667);
  table.scrollToRowAtIndexPath(row(0), UITableViewScrollPositionBottom, NO);
  EXPECT_EQ(table.contentOffset().y, 0);
}

TEST_F(TableViewTest, TheTitleOfASectionStaysInSightUntilTheNextPushesItOut) {
  source().rows = {20, 20};
  source().has_titles = true;
  table.reloadData();
  advance(0.02);
  EXPECT_EQ(table.rectForHeaderInSection(0), CGRect(0, 0, 375, 28));
  EXPECT_EQ(table.rectForRowAtIndexPath(row(0)).origin.y, 28);
  const auto titles = [this] {
    std::vector<CGFloat> tops;
    for (const UIView view : table.subviews().of<UIView>())
      if (!view.isKindOfClass(UITableViewCell::cls()) && view.frame().size.height == 28)
        tops.push_back(view.frame().origin.y);
    std::sort(tops.begin(), tops.end());
    return tops;
  };
  table.setContentOffset({0, 400});
  advance(0.02);
  EXPECT_EQ(titles(), (std::vector<CGFloat>{400, 28 + 880}));
  table.setContentOffset({0, 890});
  advance(0.02);
  EXPECT_EQ(titles(), (std::vector<CGFloat>{880, 908}));
}

TEST_F(TableViewTest, TheBackgroundStaysBehindTheRowsAndDoesNotScroll) {
  const UIView background = UIView::alloc().initWithFrame({});
  table.setBackgroundView(background);
  table.setContentOffset({0, 500});
  advance(0.02);
  EXPECT_EQ(background.frame(), CGRect(0, 500, 375, 667));
  EXPECT_EQ(table.subviews().firstObject(), background);
  background.release();
}

TEST_F(TableViewTest, ATableUsedAsAnothersDelegateIsSentOnlyWhatItImplements) {
  const UITableView listening = UITableView::alloc().initWithFrame({}, UITableViewStylePlain);
  table.setDelegate(listening);
  table.reloadData();
  tap({100, 100});
  EXPECT_EQ(table.indexPathForSelectedRow().row(), 2);
  table.setDelegate(listener);
  listening.release();
}

}  // namespace
