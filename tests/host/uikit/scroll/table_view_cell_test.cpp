#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UITableViewCell.h"
#include "tests/host/uikit/scroll/scroll_test.h"

namespace {

class TableViewCellTest : public host::test::ScrollTest {
 public:
  TableViewCellTest() { use(UITableViewCellStyleDefault); }
  ~TableViewCellTest() override { cell.release(); }

  void use(UITableViewCellStyle style) {
    cell.release();
    cell = UITableViewCell::alloc().initWithStyle(style, "Cell"_ns);
    cell.setFrame({0, 0, 200, 35});
  }
  static UIImage image(CGSize size) {
    UIGraphicsBeginImageContextWithOptions(size, NO, 1);
    const UIImage made = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return made;
  }

  UITableViewCell cell;
};

TEST_F(TableViewCellTest, ItHasAContentViewOfItsOwnSize) {
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.contentView().frame(), CGRect(0, 0, 200, 35));
  EXPECT_EQ(cell.contentView().superview(), cell);
}

TEST_F(TableViewCellTest, TheTextIsIndentedByFifteenPoints) {
  cell.textLabel().setText("Song"_ns);
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.textLabel().frame(), CGRect(15, 0, 170, 35));
}

TEST_F(TableViewCellTest, TheImageComesBeforeTheTextAndMovesIt) {
  cell.textLabel().setText("Song"_ns);
  cell.imageView().setImage(image({30, 30}));
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.imageView().frame(), CGRect(15, 2.5, 30, 30));
  EXPECT_EQ(cell.textLabel().frame().origin.x, 60);
}

TEST_F(TableViewCellTest, AScaledImageViewKeepsItsTransform) {
  cell.imageView().setImage(image({30, 30}));
  cell.imageView().setTransform({0.6, 0, 0, 0.6, 0, 0});
  cell.layoutIfNeeded();
  cell.setNeedsLayout();
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.imageView().bounds().size, (CGSize{30, 30}));
  EXPECT_NEAR(cell.imageView().frame().size.width, 18, 1e-9);
}

TEST_F(TableViewCellTest, ATallImageIsFittedIntoTheRow) {
  cell.imageView().setImage(image({140, 70}));
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.imageView().bounds().size, (CGSize{70, 35}));
}

TEST_F(TableViewCellTest, OnlyStylesWithADetailHaveItsLabel) {
  EXPECT_FALSE(cell.detailTextLabel());
  use(UITableViewCellStyleSubtitle);
  EXPECT_TRUE(cell.detailTextLabel());
}

TEST_F(TableViewCellTest, ASubtitleIsBelowTheText) {
  use(UITableViewCellStyleSubtitle);
  cell.textLabel().setText("Song"_ns);
  cell.detailTextLabel().setText("Artist"_ns);
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.detailTextLabel().frame().min_y(), cell.textLabel().frame().max_y());
  EXPECT_EQ(cell.detailTextLabel().frame().min_x(), 15);
}

TEST_F(TableViewCellTest, AValueIsAtTheRightAndTheTextTakesPrecedence) {
  use(UITableViewCellStyleValue1);
  cell.textLabel().setText("Blur"_ns);
  cell.detailTextLabel().setText("Dark"_ns);
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.detailTextLabel().frame().max_x(), 185);
  EXPECT_LT(cell.textLabel().frame().max_x(), cell.detailTextLabel().frame().min_x());
}

TEST_F(TableViewCellTest, AnAccessoryTakesItsRoomFromTheContent) {
  cell.setAccessoryType(UITableViewCellAccessoryDisclosureIndicator);
  cell.layoutIfNeeded();
  EXPECT_EQ(cell.contentView().frame().size.width, 200 - 15 - 8);
  const UIView own = UIView::alloc().initWithFrame({0, 0, 40, 20});
  cell.setAccessoryView(own);
  cell.layoutIfNeeded();
  EXPECT_EQ(own.frame(), CGRect(145, 7.5, 40, 20));
  EXPECT_EQ(cell.contentView().frame().size.width, 145);
  own.release();
}

TEST_F(TableViewCellTest, TheSelectedBackgroundShowsWhileSelectedOrHighlighted) {
  const UIView background = UIView::alloc().initWithFrame({});
  cell.setSelectedBackgroundView(background);
  EXPECT_FALSE(background.superview());
  cell.setSelected(YES, NO);
  EXPECT_EQ(background.superview(), cell);
  EXPECT_EQ(background.frame(), CGRect(0, 0, 200, 35));
  EXPECT_EQ(background.alpha(), 1);
  cell.setSelected(NO, NO);
  EXPECT_EQ(background.alpha(), 0);
  cell.setHighlighted(YES, NO);
  EXPECT_EQ(background.alpha(), 1);
  background.release();
}

TEST_F(TableViewCellTest, WithoutASelectionStyleNothingShows) {
  cell.setSelectionStyle(UITableViewCellSelectionStyleNone);
  cell.setSelected(YES, NO);
  EXPECT_EQ(cell.subviews().count(), 1u);
  EXPECT_EQ(cell.isSelected(), YES);
}

TEST_F(TableViewCellTest, PreparedForReuseItIsNeitherSelectedNorHighlighted) {
  cell.setSelected(YES, NO);
  cell.setHighlighted(YES, NO);
  cell.prepareForReuse();
  EXPECT_EQ(cell.isSelected(), NO);
  EXPECT_EQ(cell.isHighlighted(), NO);
}

TEST_F(TableViewCellTest, TheOldInitializerKeepsFrameAndIdentifier) {
  const UITableViewCell old = UITableViewCell::alloc().initWithFrame({0, 0, 100, 400}, "Old"_ns);
  EXPECT_EQ(old.frame(), CGRect(0, 0, 100, 400));
  EXPECT_STREQ(old.reuseIdentifier().UTF8String(), "Old");
  old.release();
}

}  // namespace
