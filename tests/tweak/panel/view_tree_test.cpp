#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIWindow.h"
#include "platform/UIKit/_UIBackdropView.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

/// The panel as it is built, on one screen of each size.
class ViewTree : public PanelTest, public ::testing::WithParamInterface<const char*> {
 protected:
  ViewTree() : PanelTest(GetParam()) {}

  void SetUp() override {
    // A song would move the controls to the layout for playing.
    launch();
    width = screen().width;
    height = screen().height;
  }

  static std::string class_of(NSObject object) { return object.className().UTF8String(); }
  /// How much shorter the list of songs is on small screens.
  CGFloat correction() const {
    const CGFloat for_allowance = global<float>("max") == 0 ? -15 : 0;
    const CGFloat for_width = 2 * width == 750 ? -15 : 2 * width == 1080 ? -25 : 0;
    return for_allowance + for_width;
  }

  CGFloat width = 0;
  CGFloat height = 0;
};

std::string name_of_model(const ::testing::TestParamInfo<const char*>& info) {
  std::string name = info.param;
  name[name.find(',')] = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(, ViewTree,
                         ::testing::Values("iPhone4,1", "iPhone5,1", "iPhone7,2", "iPhone7,1",
                                           "iPad4,1"),
                         name_of_model);

TEST_P(ViewTree, WindowsAndBackdropCoverTheScreen) {
  EXPECT_EQ(frame("window"), (CGRect{0, 0, width, height}));
  EXPECT_EQ(global<UIWindow>("locationWindow").frame(), frame("window"));
  EXPECT_EQ(global<UIWindow>("window").windowLevel(), UIWindowLevelStatusBar + 527);
  EXPECT_THAT(frame("cover"), IsNear(CGRect{(width - height) / 2, 0, height, height}));
  EXPECT_EQ(frame("main"), (CGRect{0, 0, height, height}));
}

TEST_P(ViewTree, TheTwinHasTheIconsFrameAndPicture) {
  EXPECT_EQ(frame("music"), music_icon().frame());
  const auto picture = objc::cast<UIImageView>(view("music").subviews().firstObject());
  EXPECT_EQ(class_of(picture), "UIImageView");
  EXPECT_TRUE(picture.image());
  EXPECT_EQ(picture.frame().size, picture.image().size());
}

TEST_P(ViewTree, PagesAndArtwork) {
  EXPECT_THAT(frame("container"), IsNear(CGRect{0, height / 4, width, 3 * height / 4 - 20}));
  EXPECT_THAT(global<UIScrollView>("container").contentSize(),
              IsNear(CGSize{3 * width, 3 * height / 4 - 20}));
  EXPECT_THAT(frame("art"), IsNear(CGRect{width / 6, 11, 2 * width / 3, 2 * width / 3}));
  // The album's table is outside the artwork, to its right.
  EXPECT_THAT(frame("blurTable"), IsNear(CGRect{2 * width / 3, 0, 2 * width / 3, 2 * width / 3}));
  EXPECT_THAT(frame("tablev"), IsNear(CGRect{0, 0, 2 * width / 3, 2 * width / 3}));
}

TEST_P(ViewTree, TextsAreBelowTheArtwork) {
  const CGFloat bottom_of_artwork = 11 + 2 * width / 3;
  EXPECT_THAT(frame("container1"), IsNear(CGRect{0, bottom_of_artwork + 10, width, 45}));
  EXPECT_THAT(frame("title"), IsNear(CGRect{0, 0, width, 20}));
  EXPECT_EQ(frame("artist").origin, (CGPoint{0, 25}));
  EXPECT_EQ(frame("artist").size.width, width);
  EXPECT_LE(frame("artist").max_y(), 45);
}

TEST_P(ViewTree, ControlsAreLiftedToWhereTheTextsAre) {
  const CGFloat below = frame("container1").max_y();
  const CGFloat left = width / 6;
  const CGFloat right = width / 6 + 2 * width / 3;
  EXPECT_THAT(frame("play"), IsNear(CGRect{(width - 50) / 2, below + 10 - 45, 50, 50}));
  EXPECT_THAT(frame("back"), IsNear(CGRect{left, below + 20 - 45, 40, 30}));
  EXPECT_THAT(frame("next"), IsNear(CGRect{right - 40, below + 20 - 45, 40, 30}));
  EXPECT_EQ(frame("ring"), (CGRect{0, 0, 50, 50}));
}

TEST_P(ViewTree, TheListOfSongsIsOnTheSecondPage) {
  const CGFloat pages = 3 * height / 4 - 20;
  const CGRect list{1.25 * width, 0, width / 2, 2 * pages / 3 + 10 + correction()};
  EXPECT_THAT(frame("tableView"), IsNear(list));
  EXPECT_THAT(frame("top"), IsNear(CGRect{list.origin.x, 0, width / 2, 1}));
  EXPECT_THAT(frame("bottom"), IsNear(CGRect{list.origin.x, list.size.height - 1, width / 2, 1}));
  EXPECT_THAT(frame("searchCont").size, IsNear(CGSize{width / 2, 31}));
  EXPECT_THAT(frame("searchBar"), IsNear(CGRect{0, 3, width / 2, 25}));
  const auto table = global<UITableView>("tableView");
  EXPECT_EQ(table.tableHeaderView(), view("searchCont"));
  EXPECT_EQ(table.contentOffset(), (CGPoint{0, 31}));
}

TEST_P(ViewTree, TheGrabberIsAtTheBackdropsBottom) {
  // In the coordinates of the backdrop, which covers the screen.
  EXPECT_EQ(frame("grabbers").origin.y, frame("cover").max_y() - 20);
  const CGSize bar = frame("grabbers").size;
  EXPECT_EQ(bar.width, frame("cover").size.width);
  EXPECT_THAT(frame("grabs"), IsNear(CGRect{(bar.width - 40) / 2, (bar.height - 15) / 2, 40, 15}));
  EXPECT_THAT(frame("top2"), IsNear(CGRect{0, 0, bar.width, 0.5}));
}

TEST_P(ViewTree, TheAlbumStripIsOnTheThirdPageWithItsLines) {
  const CGRect strip = frame("albums");
  EXPECT_GE(strip.min_x(), 2 * width);
  EXPECT_LE(strip.max_x(), 3 * width);
  EXPECT_THAT(frame("top1"), IsNear(CGRect{strip.min_x(), strip.min_y(), strip.size.width, 1}));
  EXPECT_THAT(frame("bottom1"),
              IsNear(CGRect{strip.min_x(), strip.max_y() - 1, strip.size.width, 1}));
}

/// A screen on which the list of songs is shorter, and by how much.
struct SmallScreen {
  DeviceModel model;
  CGFloat shorter;
};

void PrintTo(const SmallScreen& screen, std::ostream* out) {
  *out << screen.model.name;
}

constexpr SmallScreen kSmallScreens[] = {
    {{"iPhone7,2", "750 pixels wide", 375, 667, 2, false}, 15},
    {{"iPhone7,1", "1080 pixels wide", 540, 960, 2, false}, 25},
    {{"iPhone4,1", "no allowance", 320, 480, 2, false}, 15},
    {{"iPhone4,1", "no allowance and 750 pixels wide", 375, 667, 2, false}, 30},
    {{"iPhone6,1", "neither", 320, 568, 2, false}, 0},
};

class SmallScreenList : public PanelTest, public ::testing::WithParamInterface<SmallScreen> {
 protected:
  SmallScreenList() : PanelTest(GetParam().model) { use_no_songs(); }
};

INSTANTIATE_TEST_SUITE_P(, SmallScreenList, ::testing::ValuesIn(kSmallScreens));

TEST_P(SmallScreenList, IsShorterByEachReason) {
  launch();
  const CGFloat whole = 2 * frame("container").size.height / 3 + 10;
  EXPECT_THAT(whole - frame("tableView").size.height, IsNear(GetParam().shorter));
}

}  // namespace
}  // namespace host::test
