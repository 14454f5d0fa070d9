#include "host/uikit/focus/focus.h"
#include "platform/UIKit/UIButton.h"
#include "tests/host/uikit/scroll/scroll_view_fixture.h"
#include "tests/host/uikit/scroll/table_listener.h"

namespace host::test {
namespace {

class FocusInTable : public TableTest {
 protected:
  bool key(std::string_view name) {
    const bool done = focus.press_key(name);
    advance(0.01);
    return done;
  }
  void keys(std::string_view name, int count) {
    for (int i = 0; i < count; ++i)
      key(name);
  }

  uikit::Focus focus{loop};
};

TEST_F(FocusInTable, ArrowsGoThroughAllRows) {
  for (NSInteger row = 0; row < 100; ++row) {
    ASSERT_TRUE(key("down"));
    ASSERT_EQ(focus.view().tag(), row);
    ASSERT_TRUE(focus.ring()) << row;
  }
  EXPECT_EQ(table.contentOffset().y, 100 * 44 - 667);
  EXPECT_FALSE(key("down"));
  for (NSInteger row = 98; row >= 0; --row) {
    ASSERT_TRUE(key("up"));
    ASSERT_EQ(focus.view().tag(), row);
  }
  EXPECT_EQ(table.contentOffset().y, 0);
}

TEST_F(FocusInTable, ARowThatIsPartlySeenIsShownAsAWhole) {
  // The sixteenth row begins at 660 points.
  keys("tab", 15);
  EXPECT_EQ(table.contentOffset().y, 0);
  key("tab");
  EXPECT_EQ(focus.view().tag(), 15);
  EXPECT_EQ(table.contentOffset().y, 16 * 44 - 667);
}

TEST_F(FocusInTable, ReturnChoosesTheRow) {
  keys("down", 3);
  events().clear();
  focus.press_key("return");
  advance(0.3);
  EXPECT_EQ(milestones(), (std::vector<std::string>{"willSelect 2", "didSelect 2"}));
}

TEST_F(FocusInTable, TheFocusStaysOnARowThatIsReadAgain) {
  keys("down", 3);
  const CGRect place = focus.ring().frame();
  table.reloadData();
  advance(0.1);
  ASSERT_TRUE(focus.ring());
  EXPECT_EQ(CGRect(focus.ring().frame()), place);
  EXPECT_EQ(focus.view().tag(), 2);
  EXPECT_TRUE(focus.view().window());
}

TEST_F(FocusInTable, RowsThatCannotBeChosenAreNoStops) {
  table.setAllowsSelection(NO);
  EXPECT_FALSE(key("down"));
}

class FocusInScrollView : public ScrollViewTest {
 protected:
  UIButton add_button(CGRect frame) {
    const UIButton button = UIButton::alloc().initWithFrame(frame).autorelease();
    scroll.addSubview(button);
    return button;
  }
  bool key(std::string_view name) {
    const bool done = focus.press_key(name);
    advance(1);
    return done;
  }

  uikit::Focus focus{loop};
};

TEST_F(FocusInScrollView, WhatIsOutOfSightIsBroughtIntoSight) {
  const UIButton first = add_button({20, 20, 100, 40});
  const UIButton second = add_button({20, 900, 100, 40});
  key("tab");
  EXPECT_EQ(focus.view(), first);
  key("tab");
  EXPECT_EQ(focus.view(), second);
  EXPECT_TRUE(focus.ring());
  EXPECT_GE(y(), 940 - 667);
  key("shift-tab");
  EXPECT_EQ(focus.view(), first);
  EXPECT_LE(y(), 20);
}

TEST_F(FocusInScrollView, DelegatesAreToldAsOfATouchpad) {
  add_button({20, 20, 100, 40});
  add_button({20, 900, 100, 40});
  key("tab");
  events().clear();
  key("down");
  EXPECT_EQ(milestones().front(), "willBeginDragging");
  EXPECT_EQ(scroll.isDragging(), NO);
}

TEST_F(FocusInScrollView, TheFocusTurnsPages) {
  make_pages();
  add_button({20, 100, 60, 60});
  const UIButton right = add_button({300, 300, 60, 60});
  const UIButton far = add_button({375 + 20, 20, 60, 60});
  const UIButton level = add_button({375 + 20, 310, 60, 60});
  key("shift-tab");
  ASSERT_EQ(focus.view(), right);
  key("right");
  EXPECT_EQ(scroll.contentOffset().x, 375);
  EXPECT_EQ(focus.view(), level);
  EXPECT_TRUE(focus.ring());
  key("left");
  EXPECT_EQ(scroll.contentOffset().x, 0);
  EXPECT_EQ(focus.view(), right);
  key("tab");
  EXPECT_EQ(focus.view(), far) << "the first to be read";
}

TEST_F(FocusInScrollView, ContentThatUsersCannotScrollIsLeftAlone) {
  add_button({20, 20, 100, 40});
  add_button({20, 900, 100, 40});
  scroll.setScrollEnabled(NO);
  key("tab");
  EXPECT_FALSE(key("down"));
  EXPECT_EQ(y(), 0);
}

}  // namespace
}  // namespace host::test
