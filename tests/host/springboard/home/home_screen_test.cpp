#include "host/quartzcore/drawing/image.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/common/wallpaper.h"
#include "host/springboard/home/wallpaper_ahead.h"
#include "host/springboard/status_bar/status_bar.h"
#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/SpringBoard/SBDockIconListView.h"
#include "platform/SpringBoard/SBFolderIconListView.h"
#include "platform/SpringBoard/SBIconViewMap.h"
#include "platform/SpringBoard/SBUIController.h"
#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/support/phone_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class HomeScreenTest : public PhoneTest {
 protected:
  /// The texts on the screen of the application in front.
  static std::vector<std::string> lines_in_front() {
    const UIWindow window = SBUIController::sharedInstance().window();
    std::vector<std::string> lines;
    for (const UIView part :
         objc::cast<UIView>(window.subviews().lastObject()).subviews().of<UIView>())
      if (part.isKindOfClass(UILabel::cls()))
        lines.emplace_back(objc::cast<UILabel>(part).text().UTF8String());
    return lines;
  }
};
class SmallHomeScreenTest : public PhoneTest {
 public:
  SmallHomeScreenTest() : PhoneTest("iPhone4,1") {}
};
class TabletHomeScreenTest : public PhoneTest {
 public:
  TabletHomeScreenTest() : PhoneTest("iPad4,1") {}
};

std::string class_of(NSObject object) {
  return object.className().UTF8String();
}

// Only decoded pixels can be opaque.
bool is_decoded(UIImage picture) {
  return quartzcore::image_of(picture.CGImage())->is_opaque();
}

TEST_F(HomeScreenTest, TheWallpaperIsDecodedAheadOnceForAll) {
  const UIImage shown = picture(chosen_wallpaper());
  ASSERT_TRUE(shown);
  EXPECT_FALSE(is_decoded(shown));
  { const WallpaperAhead ahead; }
  EXPECT_TRUE(is_decoded(shown));
}

TEST_F(HomeScreenTest, AMissingWallpaperIsNotDecoded) {
  Configuration changed = configuration();
  changed.wallpaper = "no-wallpaper";
  configure(changed);
  { const WallpaperAhead ahead; }
  launch();
  EXPECT_TRUE(icon_view(kMusic));
}

TEST_F(HomeScreenTest, AnIconsOriginIsRelativeToThePageBelowTheStatusBar) {
  launch();
  const SBIconView music = icon_view(kMusic);
  ASSERT_TRUE(music);
  EXPECT_EQ(class_of(music.superview()), "SBIconListView");
  const CGPoint origin = music.convertPointToView({0, 0}, nil);
  EXPECT_EQ(origin.x, music.frame().origin.x);
  EXPECT_EQ(origin.y, music.frame().origin.y + 20);
  EXPECT_FALSE(music.isInDock());
}

TEST_F(HomeScreenTest, ADockIconsOriginIsRelativeToTheDock) {
  launch();
  const SBIconView phone = icon_view(kPhone);
  EXPECT_EQ(class_of(phone.superview()), "SBDockIconListView");
  const CGFloat offset = 667 - phone.superview().frame().size.height;
  const CGPoint origin = phone.convertPointToView({0, 0}, nil);
  EXPECT_EQ(origin.x, phone.frame().origin.x);
  EXPECT_EQ(origin.y, phone.frame().origin.y + offset);
  EXPECT_TRUE(phone.isInDock());
}

TEST_F(SmallHomeScreenTest, TheSmallScreenHoldsFourRowsWithMusicInTheLast) {
  launch();
  const SBIconView music = icon_view(kMusic);
  EXPECT_EQ(music.frame().origin, (CGPoint{16, 7 + 3 * 88}));
}

TEST_F(TabletHomeScreenTest, TheTabletsIconsAre76PointsWide) {
  launch();
  EXPECT_EQ(icon_view(kMusic).frame().size.width, 76);
  const CGPoint origin = icon_view(kPhone).convertPointToView({0, 0}, nil);
  const CGFloat offset = 1024 - icon_view(kPhone).superview().frame().size.height;
  EXPECT_EQ(origin.y, icon_view(kPhone).frame().origin.y + offset);
}

TEST_F(HomeScreenTest, AnIconKnowsItsApplication) {
  launch();
  const SBIcon music = icon(kMusic);
  EXPECT_STREQ(music.application().bundleIdentifier().UTF8String(), kMusic);
  EXPECT_STREQ(music.applicationBundleID().UTF8String(), kMusic);
  EXPECT_STREQ(music.displayName().UTF8String(), "Music");
  const UIImage image = music.generateIconImage(SBIconImageFormatHomeScreen);
  EXPECT_EQ(image.size(), (CGSize{60, 60}));
  EXPECT_EQ(image.scale(), 2);
}

TEST_F(HomeScreenTest, AMissingApplicationHasNoIcon) {
  remove_application("Music");
  launch();
  EXPECT_FALSE(SBApplicationController::sharedInstance().applicationWithBundleIdentifier(
      "com.apple.Music"_ns));
  EXPECT_FALSE(icon(kMusic));
  EXPECT_FALSE(icon_view(kMusic));
}

TEST_F(HomeScreenTest, AnIconWithoutAPictureShowsItsInitial) {
  std::filesystem::path folder = device / "Applications" / "Music.app";
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    if (file.path().extension() == ".png") std::filesystem::remove(file.path());
  }
  launch();
  EXPECT_EQ(icon(kMusic).generateIconImage(SBIconImageFormatHomeScreen).size(), (CGSize{60, 60}));
}

TEST_F(HomeScreenTest, ATapZoomsTheApplicationsScreenOutOfItsIconAndHomeZoomsItBack) {
  launch();
  const UIWindow window = SBUIController::sharedInstance().window();
  const NSUInteger views = window.subviews().count();
  tap(on_screen(kMusic));
  settle();
  ASSERT_EQ(window.subviews().count(), views + 1);
  const UIView screen = objc::cast<UIView>(window.subviews().lastObject());
  EXPECT_EQ(screen.frame(), (CGRect{0, 0, 375, 667}));
  EXPECT_EQ(screen.alpha(), 1);

  EXPECT_TRUE(SBUIController::sharedInstance().clickedMenuButton());
  settle();
  EXPECT_EQ(window.subviews().count(), views);
}

TEST_F(HomeScreenTest, AnApplicationWithoutAProgramSaysSoAndHowToLeave) {
  launch();
  tap(on_screen(kCalendar));
  settle();
  EXPECT_EQ(lines_in_front(),
            (std::vector<std::string>{"Calendar", "Only its icon is on this phone.",
                                      "Press the Home button to go back."}));
  EXPECT_TRUE(SBUIController::sharedInstance().clickedMenuButton());
}

TEST_F(HomeScreenTest, IconsTakeNoTouchesWhileAnApplicationComesOrGoes) {
  launch();
  const UIWindow window = SBUIController::sharedInstance().window();
  const NSUInteger views = window.subviews().count();
  constexpr int kOtherFinger = 7;
  touches.began(kOtherFinger, on_screen(kPhotos), clock.now());
  tap(on_screen(kCalendar));
  touches.ended(kOtherFinger, on_screen(kPhotos), clock.now());
  advance(0.1);
  tap(on_screen(kPhotos));
  settle();
  ASSERT_EQ(window.subviews().count(), views + 1);
  EXPECT_EQ(lines_in_front().front(), "Calendar");
  EXPECT_TRUE(SBUIController::sharedInstance().clickedMenuButton());
  advance(0.1);
  tap(on_screen(kPhotos));
  settle();
  EXPECT_EQ(window.subviews().count(), views);
  tap(on_screen(kPhotos));
  settle();
  EXPECT_EQ(lines_in_front().front(), "Photos");
  EXPECT_TRUE(SBUIController::sharedInstance().clickedMenuButton());
}

TEST_F(HomeScreenTest, AFingerDarkensTheIconUntilItLeaves) {
  launch();
  press(on_screen(kCalendar));
  EXPECT_TRUE(icon_view(kCalendar).isHighlighted());
  lift();
  EXPECT_FALSE(icon_view(kCalendar).isHighlighted());
  settle();
}

TEST_F(HomeScreenTest, ASwipeTurnsThePageAndReleasesTheIcon) {
  launch();
  ASSERT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 0);
  drag({330, 200}, {60, 200}, 0.2);
  EXPECT_FALSE(icon_view(kPhotos).isHighlighted());
  lift();
  settle();
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 1);
  EXPECT_FALSE(SBIconController::sharedInstance().isEditing());
  EXPECT_TRUE(SBUIController::sharedInstance().clickedMenuButton());
  settle();
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 0);
}

TEST_F(HomeScreenTest, HomeDoesNothingOnAScreenAtRest) {
  launch();
  EXPECT_FALSE(SBUIController::sharedInstance().clickedMenuButton());
}

TEST_F(HomeScreenTest, HomeLeavesOneThingPerPress) {
  launch();
  const auto home = SBUIController::sharedInstance();
  const auto icons = SBIconController::sharedInstance();
  icons.scrollToIconListAtIndex(1, NO);
  icons.setIsEditing(YES);
  EXPECT_TRUE(home.handleMenuDoubleTap());
  EXPECT_TRUE(home.isAppSwitcherShowing());

  home.clickedMenuButton();
  EXPECT_FALSE(home.isAppSwitcherShowing());
  EXPECT_TRUE(icons.isEditing());
  home.clickedMenuButton();
  EXPECT_FALSE(icons.isEditing());
  EXPECT_EQ(icons.currentIconListIndex(), 1);
  home.clickedMenuButton();
  settle();
  EXPECT_EQ(icons.currentIconListIndex(), 0);
}

TEST_F(HomeScreenTest, TheStatusBarIsAboveTheHomeScreenAndIgnoresTouches) {
  launch();
  const auto top = objc::cast<UIWindow>(UIApplication::sharedApplication().windows().lastObject());
  EXPECT_EQ(top.windowLevel(), UIWindowLevelStatusBar);
  EXPECT_EQ(top.frame(), (CGRect{0, 0, 375, 20}));
  EXPECT_FALSE(top.isUserInteractionEnabled());
}

/// A wall clock that advances with the test's clock.
class TickingWallClock final : public WallClock {
 public:
  explicit TickingWallClock(const Clock& clock) : clock_(clock), start_(clock.now()) {}
  std::string time_text() const override {
    return "10:0" + std::to_string(static_cast<int>((clock_.now() - start_ + 0.001) / 60));
  }
  double seconds_to_next_minute() const override { return 60; }
  CalendarDay day() const override { return {"Monday", 1}; }
  std::string date_text() const override { return "Monday, June 1"; }

 private:
  const Clock& clock_;
  double start_;
};

/// The texts that are seen in the bar.
std::vector<std::string> texts_of(const StatusBar& bar) {
  std::vector<std::string> texts;
  for (const UIView part : bar.window().subviews().of<UIView>())
    if (part.isKindOfClass(UILabel::cls()) && !part.isHidden())
      texts.emplace_back(objc::cast<UILabel>(part).text().UTF8String());
  return texts;
}

TEST_F(HomeScreenTest, ANoticeStandsInTheStatusBarForAWhileInsteadOfTheTime) {
  launch();
  show_status_notice("For the bar of this phone");
  const FixedWallClock wall;
  StatusBar bar(wall);
  const auto ordinary = texts_of(bar);
  show_status_notice("Cannot play \x1b[2J.flac");
  auto with_notice = texts_of(bar);
  ASSERT_EQ(with_notice.size(), ordinary.size());
  EXPECT_EQ(with_notice.back().substr(0, 12), "Cannot play ");
  EXPECT_EQ(with_notice.back().find('\x1b'), std::string::npos);
  advance(4);
  bar.set_locked(true);
  show_status_notice("No sound device");
  advance(4);
  EXPECT_EQ(texts_of(bar).back(), "No sound device");
  bar.set_locked(false);
  advance(4);
  EXPECT_EQ(texts_of(bar), ordinary);
}

TEST_F(HomeScreenTest, ANoticeFromBeforeTheLaunchWaitsForTheStatusBar) {
  show_status_notice("No sound device");
  const FixedWallClock wall;
  const StatusBar bar(wall);
  EXPECT_EQ(texts_of(bar).back(), "No sound device");
}

TEST_F(HomeScreenTest, TheStatusBarFollowsTheWallClockFromMinuteToMinute) {
  const TickingWallClock wall(clock);
  StatusBar bar(wall);
  EXPECT_STREQ(bar.time_text().UTF8String(), "10:00");
  advance(59);
  EXPECT_STREQ(bar.time_text().UTF8String(), "10:00");
  advance(1.5);
  EXPECT_STREQ(bar.time_text().UTF8String(), "10:01");
  advance(60);
  EXPECT_STREQ(bar.time_text().UTF8String(), "10:02");
}

TEST_F(HomeScreenTest, AScreenAtRestWantsNoFrames) {
  launch();
  settle();
  EXPECT_FALSE(loop.wants_frames());
  set_editing(true);
  advance(0.1);
  EXPECT_TRUE(loop.wants_frames());
  set_editing(false);
  settle();
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(HomeScreenTest, TheArrangementSurvivesARelaunch) {
  launch();
  ASSERT_TRUE(move_out_of_dock(kPhone));
  ASSERT_TRUE(move_to_dock(kMusic));
  const CGRect music = icon_view(kMusic).frame();
  launch();
  EXPECT_TRUE(icon_view(kMusic).isInDock());
  EXPECT_FALSE(icon_view(kPhone).isInDock());
  EXPECT_EQ(icon_view(kMusic).frame(), music);
}

TEST_F(HomeScreenTest, UninstallingAnApplicationRemovesItsIconAndItsView) {
  launch();
  const auto view = objc::Ref<SBIconView>::retain(icon_view(kMusic));
  EXPECT_TRUE(uninstall(kMusic));
  EXPECT_FALSE(view->superview());
  EXPECT_FALSE(icon(kMusic));
  EXPECT_FALSE(uninstall(kMusic));
  EXPECT_FALSE(std::filesystem::exists(device / "Applications" / "Music.app"));
}

}  // namespace
}  // namespace host::springboard
