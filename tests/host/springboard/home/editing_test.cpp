#include "host/springboard/icon/folder_icon.h"
#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBIconListView.h"
#include "platform/SpringBoard/SBIconViewMap.h"
#include "platform/SpringBoard/SBUIController.h"
#include "tests/support/phone_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

std::string class_of(NSObject object) {
  return object.className().UTF8String();
}

bool is_editing() {
  return SBIconController::sharedInstance().isEditing();
}

class EditingTest : public PhoneTest {};
class FolderTest : public PhoneTest {
 public:
  /// The folder on the second page of the default arrangement.
  SBIconView first_folder() const {
    const auto page = objc::cast<SBIconListView>(icon_view("com.apple.podcasts").superview());
    for (const SBIcon icon : page.icons().of<SBIcon>()) {
      if (icon.isFolderIcon()) return SBIconViewMap::homescreenMap().mappedIconViewForIcon(icon);
    }
    return nil;
  }
};

TEST_F(EditingTest, ALongPressStartsItAndHomeEndsIt) {
  launch();
  press(on_screen(kCalendar));
  advance(0.6);
  lift();
  EXPECT_TRUE(is_editing());
  EXPECT_TRUE(icon_view(kMusic).isEditing());
  press_home();
  EXPECT_FALSE(is_editing());
  EXPECT_FALSE(icon_view(kMusic).isEditing());
}

TEST_F(EditingTest, WobblingDoesNotChangeTheIconsFrame) {
  launch();
  const CGRect before = icon_view(kMusic).frame();
  set_editing(true);
  advance(0.3);
  EXPECT_EQ(icon_view(kMusic).frame(), before);
}

TEST_F(EditingTest, ATapDoesNotLaunch) {
  launch();
  const auto window = SBUIController::sharedInstance().window();
  set_editing(true);
  const NSUInteger views = window.subviews().count();
  tap(on_screen(kMusic));
  settle();
  EXPECT_EQ(window.subviews().count(), views);
}

TEST_F(EditingTest, ADraggedIconTakesTheSlotItIsDroppedOn) {
  launch();
  set_editing(true);
  const CGPoint calendar = on_screen(kCalendar);
  const CGPoint photos = on_screen(kPhotos);
  const SBIconView view = icon_view(kCalendar);
  // Not on the centre, where the two icons would form a folder.
  drag(calendar, {photos.x + 24, photos.y}, 0.3, 0.5);
  lift();
  settle();
  EXPECT_EQ(on_screen(kCalendar), photos);
  EXPECT_EQ(on_screen(kPhotos), calendar);
  EXPECT_EQ(icon_view(kCalendar), view) << "the icon keeps its view";
}

TEST_F(EditingTest, AnIconWithoutRecognizersCanStillBeMoved) {
  launch();
  icon_view(kCalendar).setGestureRecognizers(NSArray::array());
  set_editing(true);
  const CGPoint photos = on_screen(kPhotos);
  drag(on_screen(kCalendar), {photos.x + 24, photos.y}, 0.3, 0.5);
  lift();
  settle();
  EXPECT_EQ(on_screen(kCalendar), photos);
}

TEST_F(EditingTest, TheLongPressThatStartsItAlsoDragsTheIcon) {
  launch();
  const CGPoint calendar = on_screen(kCalendar);
  const CGPoint photos = on_screen(kPhotos);
  press(calendar);
  advance(0.6);
  for (int step = 1; step <= 10; ++step) {
    advance(RunLoop::kFrame);
    move({calendar.x + (photos.x + 24 - calendar.x) * step / 10, calendar.y});
  }
  advance(0.5);
  lift();
  settle();
  EXPECT_EQ(on_screen(kCalendar), photos);
}

TEST_F(EditingTest, DraggingAnIconDoesNotTurnThePage) {
  launch();
  set_editing(true);
  const CGPoint photos = on_screen(kPhotos);
  drag({photos.x, photos.y}, {photos.x - 100, photos.y}, 0.1);
  lift();
  settle();
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 0);
}

TEST_F(EditingTest, AnIconHeldAtTheEdgeGoesToTheNextPage) {
  launch();
  set_editing(true);
  drag(on_screen(kPhotos), {370, 200}, 0.3, 1.5);
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 1);
  move({200, 300});
  advance(0.4);
  lift();
  settle();
  const CGPoint at = on_screen(kPhotos);
  EXPECT_GT(at.x, 0);
  EXPECT_LT(at.x, 375);
}

TEST_F(EditingTest, AFullDockAcceptsNoIcon) {
  launch();
  set_editing(true);
  const CGPoint before = on_screen(kMusic);
  // Between two icons: on one of them it would form a folder.
  drag(on_screen(kMusic), {187, 612}, 0.3, 0.5);
  lift();
  settle();
  EXPECT_FALSE(icon_view(kMusic).isInDock());
  EXPECT_EQ(on_screen(kMusic), before);
}

TEST_F(EditingTest, AnIconCanLeaveTheDockAndReturn) {
  launch();
  set_editing(true);
  const CGPoint phone = on_screen(kPhone);
  drag(phone, {200, 300}, 0.3, 0.5);
  lift();
  settle();
  EXPECT_FALSE(icon_view(kPhone).isInDock());
  drag(on_screen(kPhone), {133, phone.y}, 0.3, 0.5);
  lift();
  settle();
  EXPECT_TRUE(icon_view(kPhone).isInDock());
}

TEST_F(FolderTest, HoldingAnIconOverAnotherMakesAFolder) {
  launch();
  set_editing(true);
  drag(on_screen(kCalendar), on_screen(kPhotos), 0.3, 0.6);
  lift();
  settle();
  EXPECT_EQ(class_of(icon_view(kCalendar).superview()), "SBFolderIconListView");
  EXPECT_EQ(icon_view(kCalendar).superview(), icon_view(kPhotos).superview());
}

TEST_F(FolderTest, AnIconInAClosedFolderHasItsViewInTheFoldersList) {
  launch();
  const SBIconView view = icon_view(kMusic);
  EXPECT_TRUE(move_to_folder(kMusic));
  EXPECT_EQ(icon_view(kMusic), view);
  EXPECT_EQ(class_of(view.superview()), "SBFolderIconListView");
  EXPECT_FALSE(view.isInDock());
  EXPECT_TRUE(move_out_of_folder(kMusic));
  EXPECT_EQ(icon_view(kMusic), view);
  EXPECT_EQ(class_of(view.superview()), "SBIconListView");
}

TEST_F(FolderTest, ATapOpensItAndATapOutsideClosesIt) {
  launch();
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  advance(0.1);
  const SBIconView folder = first_folder();
  ASSERT_TRUE(folder);
  EXPECT_FALSE(icon_view(kCalculator).window());
  tap(on_screen(folder));
  settle();
  EXPECT_TRUE(SBIconController::sharedInstance().hasOpenFolder());
  EXPECT_TRUE(icon_view(kCalculator).window());
  tap({187, 640});
  settle();
  EXPECT_FALSE(SBIconController::sharedInstance().hasOpenFolder());
  EXPECT_EQ(class_of(icon_view(kCalculator).superview()), "SBFolderIconListView");
}

TEST_F(FolderTest, ATapOnAnIconInsideLaunchesItAndDoesNotClose) {
  launch();
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  advance(0.1);
  tap(on_screen(first_folder()));
  settle();
  const auto window = SBUIController::sharedInstance().window();
  const NSUInteger views = window.subviews().count();
  tap(on_screen(kCalculator));
  settle();
  EXPECT_EQ(window.subviews().count(), views + 1);
  EXPECT_TRUE(SBIconController::sharedInstance().hasOpenFolder());
  press_home();
  press_home();
  settle();
  EXPECT_FALSE(SBIconController::sharedInstance().hasOpenFolder());
}

TEST_F(FolderTest, AnIconDraggedOutOfTheOpenFolderClosesItAndLandsOnThePage) {
  launch();
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  set_editing(true);
  advance(0.1);
  tap(on_screen(first_folder()));
  settle();
  ASSERT_TRUE(SBIconController::sharedInstance().hasOpenFolder());
  drag(on_screen(kCalculator), {200, 540}, 0.3, 1.5);
  EXPECT_FALSE(SBIconController::sharedInstance().hasOpenFolder());
  lift();
  settle();
  EXPECT_EQ(class_of(icon_view(kCalculator).superview()), "SBIconListView");
}

TEST_F(FolderTest, TheFolderIsRemovedWithItsLastIcon) {
  launch();
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  const auto folder = objc::Ref<SBIconView>::retain(first_folder());
  const NSArray inside = objc::state_of<FolderIcon>(folder->icon()).icons().copy().autorelease();
  for (const SBIcon each : inside.of<SBIcon>())
    EXPECT_TRUE(move_out_of_folder(each.applicationBundleID().UTF8String()));
  EXPECT_FALSE(folder->superview());
}

}  // namespace
}  // namespace host::springboard
