#include "objc/autorelease_pool.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIImageView.h"
#include "tests/settings/credits_page_test.h"
#include "tests/settings/every_device.h"

// The layout and look of the credits.

namespace sonavue::test {
namespace {

class CreditsLayout : public Credits {
 protected:
  static UILabel label(UIView top, std::string_view text) {
    return objc::cast<UILabel>(find(top, text));
  }
  static UIImageView picture(UIView top, NSUInteger number) {
    for (const UIView part : top.subviews().of<UIView>()) {
      if (part.isKindOfClass(UIImageView::cls()) && number-- == 0)
        return objc::cast<UIImageView>(part);
    }
    return nil;
  }
  static void expect_font(UILabel label, const char* name, CGFloat size) {
    EXPECT_STREQ(label.font().fontName().UTF8String(), name);
    EXPECT_EQ(label.font().pointSize(), size);
  }
};

TEST_F(CreditsLayout, ARowShowsARoundPhotoTwoLinesAndAnArrow) {
  open_credits();
  // The row's own parts, before the table lays out its parts.
  const objc::Object cls(objc_getClass("developerCell"));
  const auto row =
      objc::cast<UIView>(objc::send<PSHeaderViewDelegate>(objc::send<NSObject>(cls, "alloc"_sel),
                                                          "initWithSpecifier:"_sel, PSSpecifier())
                             .autorelease());
  const auto photo = picture(row, 0);
  EXPECT_EQ(photo.frame(), (CGRect{10, 17, 60, 60}));
  EXPECT_TRUE(photo.image());
  EXPECT_TRUE(photo.layer().masksToBounds());
  EXPECT_EQ(photo.layer().cornerRadius(), 30);
  const auto name = label(row, "Plum (@plumcode)");
  expect_font(name, "HelveticaNeue-UltraLight", UIFont::labelFontSize() + 1);
  EXPECT_EQ(name.frame().origin.x, 80);
  const auto role = label(row, "Developer");
  EXPECT_STREQ(role.font().fontName().UTF8String(), "HelveticaNeue-Light");
  EXPECT_EQ(role.frame().origin.x, 80);
  EXPECT_GE(role.frame().origin.y, CGRect(name.frame()).max_y());
  const auto arrow = picture(row, 1);
  EXPECT_TRUE(arrow.image());
  EXPECT_EQ(arrow.frame().size, (CGSize{8, 15}));
  EXPECT_EQ(arrow.center().y, 47);
  EXPECT_GT(arrow.frame().origin.x, kScreen.size.width - 40);
}

TEST_F(CreditsLayout, ACardShowsTheAuthorInTheMiddle) {
  open_card("designerCell");
  const UIView top = card.view();
  EXPECT_EQ(top.bounds().size, kScreen.size);
  EXPECT_EQ(top.backgroundColor(), UIColor::whiteColor());
  const auto photo = picture(top, 0);
  EXPECT_TRUE(photo.image());
  EXPECT_EQ(photo.frame().size, (CGSize{100, 100}));
  EXPECT_EQ(photo.center().x, kScreen.size.width / 2);
  EXPECT_EQ(photo.layer().cornerRadius(), 50);
  EXPECT_TRUE(photo.layer().masksToBounds());
  const auto name = label(top, "Vane (@vanedraws)");
  expect_font(name, "HelveticaNeue-UltraLight", 25);
  EXPECT_EQ(name.frame().origin.y, CGRect(photo.frame()).max_y() + 5);
  EXPECT_EQ(name.textAlignment(), NSTextAlignmentCenter);
  EXPECT_EQ(name.center().x, kScreen.size.width / 2);
  const auto role = label(top, "Designer");
  EXPECT_STREQ(role.font().fontName().UTF8String(), "HelveticaNeue-UltraLight");
  EXPECT_GE(role.frame().origin.y, CGRect(name.frame()).max_y());
  EXPECT_FALSE(objc::send<BOOL>(card, "shouldAutorotate"_sel));
}

TEST_F(CreditsLayout, TilesAreInStripsWithoutAScrollIndicator) {
  open_card("developerCell");
  int strips = 0;
  for (const UIView part : card.view().subviews().of<UIView>()) {
    if (!part.isKindOfClass(UIScrollView::cls())) continue;
    ++strips;
    EXPECT_FALSE(objc::cast<UIScrollView>(part).showsHorizontalScrollIndicator());
    EXPECT_EQ(part.bounds().size.width, kScreen.size.width);
    for (const UIView tile : part.subviews().of<UIView>()) {
      const auto text = objc::cast<UILabel>(tile.subviews().lastObject());
      expect_font(text, "Helvetica-Light", 13.5);
      EXPECT_EQ(text.frame().size.height, 30);
      EXPECT_EQ(text.textAlignment(), NSTextAlignmentCenter);
      EXPECT_TRUE(picture(tile, 0).image()) << text.text().UTF8String();
      EXPECT_EQ(tile.backgroundColor(), UIColor::clearColor());
    }
  }
  EXPECT_EQ(strips, 2);
}

TEST_F(CreditsLayout, ACardIsReleasedWhenItIsClosed) {
  // A view retains its colour until it is deallocated.
  const UIColor color = UIColor::alloc().initWithWhite(0.5, 1);
  {
    const objc::AutoreleasePool pool;
    open_card("developerCell");
    label(card.view(), "Plum (@plumcode)").setTextColor(color);
    ASSERT_TRUE(tap_text("Close"));
    advance(2);
  }
  advance(1);
  EXPECT_EQ(color.retainCount(), 1u);
  color.release();
}

TEST_F(CreditsLayout, AMissingPhotoLeavesAnEmptyCircle) {
  fs::remove(pictures() / "developer@2x.png");
  fs::remove(pictures() / "Mail.png");
  open_card("developerCell");
  const auto photo = picture(card.view(), 0);
  EXPECT_FALSE(photo.image());
  EXPECT_EQ(photo.layer().cornerRadius(), 50);
  EXPECT_THAT(tiles(), testing::Contains("Mail"));
}

class CreditsCard : public OnEveryDevice<Credits> {};

TEST_P(CreditsCard, FitsOnTheScreenToItsLastRow) {
  open_card("developerCell");
  photograph_device("credits-card");
  const CGRect screen = UIScreen::mainScreen().bounds();
  CGFloat end = 20;  // The bottom of the status bar.
  for (const UIView part : card.view().subviews().of<UIView>()) {
    if (part.isKindOfClass(UIButton::cls())) continue;
    EXPECT_GE(part.frame().origin.y, end) << "no part overlaps the one above it";
    end = CGRect(part.frame()).max_y();
  }
  EXPECT_LE(end, screen.size.height);
  ASSERT_TRUE(tap_text("Follow"));
  EXPECT_FALSE(presented()) << "a tap on its last row closes it";
}
INSTANTIATE_TEST_SUITE_P(Devices, CreditsCard, every_device(), device_name);

}  // namespace
}  // namespace sonavue::test
