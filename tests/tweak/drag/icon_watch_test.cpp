#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr double kTick = 0.1;

class IconWatch : public PanelTest {
 protected:
  NSUInteger recognizers() const { return music_icon().gestureRecognizers().count(); }
  bool has_drag() const {
    return recognizers() == 1 &&
           objc::cast<NSObject>(music_icon().gestureRecognizers().firstObject())
               .isKindOfClass(UIPanGestureRecognizer::cls());
  }
};

TEST_F(IconWatch, AFolderRemovesTheDragWithinATenthOfASecond) {
  launch();
  ASSERT_TRUE(has_drag());
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  advance(kTick);
  EXPECT_FALSE(has_drag());
  EXPECT_FALSE(is("added"));
}

TEST_F(IconWatch, OutOfTheFolderTheDragIsBackWithinATenthOfASecond) {
  launch();
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  advance(1);
  ASSERT_TRUE(springboard::move_out_of_folder(kMusic));
  advance(kTick);
  EXPECT_TRUE(has_drag());
  EXPECT_TRUE(is("added"));
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  settle();
  open_panel();
}

TEST_F(IconWatch, ArrangingRemovesTheDragAndItsEndRestoresIt) {
  launch();
  springboard::set_editing(true);
  advance(kTick);
  EXPECT_EQ(recognizers(), 0u);
  EXPECT_FALSE(is("added"));
  springboard::set_editing(false);
  advance(kTick);
  EXPECT_TRUE(has_drag());
  EXPECT_TRUE(is("added"));
}

TEST_F(IconWatch, AnIconThatTakesNoTouchesTakesThemOnceItHasTheDrag) {
  launch();
  music_icon().setUserInteractionEnabled(NO);
  global<BOOL>("added") = NO;
  advance(kTick);
  EXPECT_TRUE(has_drag());
  EXPECT_TRUE(music_icon().isUserInteractionEnabled());
}

int living_pans = 0;
objc::Imp alloc_before = nullptr;
objc::Imp dealloc_before = nullptr;

objc::Object count_alloc(objc::Object cls, void* zone) {
  ++living_pans;
  using Body = objc::Id (*)(objc::Id, objc::Sel, void*);
  return objc::Object(reinterpret_cast<Body>(alloc_before)(cls.id(), "allocWithZone:"_sel, zone));
}

void count_dealloc(objc::Object self) {
  --living_pans;
  using Body = void (*)(objc::Id, objc::Sel);
  reinterpret_cast<Body>(dealloc_before)(self.id(), "dealloc"_sel);
}

TEST_F(IconWatch, ArrangingForLongLeaksNoRecognizers) {
  launch();
  springboard::set_editing(true);
  advance(kTick);
  const objc::Class pans = UIPanGestureRecognizer::cls();
  MSHookMessageEx(objc::class_of(reinterpret_cast<objc::Id>(pans)), "allocWithZone:"_sel,
                  reinterpret_cast<objc::Imp>(&objc::MethodOf<&count_alloc>::call), &alloc_before);
  MSHookMessageEx(pans, "dealloc"_sel,
                  reinterpret_cast<objc::Imp>(&objc::MethodOf<&count_dealloc>::call),
                  &dealloc_before);
  MethodSpy<"removeGestureRecognizer:", void(SBIconView, objc::Object)> removed(SBIconView::cls());
  advance(20);
  EXPECT_GE(removed.count(), 199);
  EXPECT_EQ(living_pans, 0);
  EXPECT_EQ(recognizers(), 0u);
}

TEST_F(IconWatch, ATickWithNothingToDoChangesNothing) {
  launch();
  advance(1);
  const auto drag = music_icon().gestureRecognizers().firstObject();
  MethodSpy<"addGestureRecognizer:", void(SBIconView, objc::Object)> attached(SBIconView::cls());
  MethodSpy<"removeGestureRecognizer:", void(SBIconView, objc::Object)> removed(SBIconView::cls());
  MethodSpy<"Loping1", void(SpringBoard)> ticks(SpringBoard::cls());
  advance(2);
  EXPECT_GE(ticks.count(), 19);
  EXPECT_EQ(attached.count() + removed.count(), 0);
  EXPECT_EQ(music_icon().gestureRecognizers().firstObject(), drag);
}

TEST_F(IconWatch, SwitchedOffItDoesNotTouchTheIcon) {
  launch();
  global<BOOL>("enabled") = NO;
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  advance(1);
  EXPECT_TRUE(has_drag());
}

TEST_F(IconWatch, AnotherApplicationsIconIsReplacedByTheRightOne) {
  launch();
  const SBIconView music = music_icon();
  const SBIconView other = icon_view(kCalendar);
  const auto foreign = UIPanGestureRecognizer::alloc().initWithTarget(application, "sposta:"_sel);
  other.addGestureRecognizer(foreign);
  foreign.release();
  global<SBIconView>("musicIcon") = other;
  global<BOOL>("added") = NO;
  advance(kTick);
  EXPECT_EQ(other.gestureRecognizers().count(), 0u);
  EXPECT_EQ(music_icon(), music);
  EXPECT_TRUE(has_drag());
  EXPECT_TRUE(is("added"));
}

TEST_F(IconWatch, TheRightIconInAFolderGetsNoDrag) {
  launch();
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  settle();
  global<SBIconView>("musicIcon") = icon_view(kCalendar);
  global<BOOL>("added") = YES;
  MethodSpy<"addGestureRecognizer:", void(SBIconView, objc::Object)> attached(SBIconView::cls());
  objc::send<>(application, "Loping1"_sel);
  EXPECT_EQ(music_icon(), icon_view(kMusic));
  EXPECT_FALSE(is("added"));
  EXPECT_EQ(attached.count(), 0);
}

TEST_F(IconWatch, AnUninstalledApplicationIsLoggedAtEveryTickAndChangesNothing) {
  launch();
  advance(0.05);
  // Uninstalling removes the icon's view. Retain it, since the extension still uses it.
  const auto icon = music_icon().retain();
  ASSERT_TRUE(springboard::uninstall(kMusic));
  settle();
  ASSERT_FALSE(SBApplicationController::sharedInstance().applicationWithBundleIdentifier(
      "com.apple.Music"_ns));
  icon.setIcon(nil);
  const BOOL added = global<BOOL>("added");
  media_tests::CapturedLog log;
  advance(1);
  EXPECT_EQ(log.count("<Sonavue> Error while hooking Music app!"), 10);
  EXPECT_EQ(music_icon(), icon);
  EXPECT_EQ(global<BOOL>("added"), added);
  EXPECT_EQ(music_icon().gestureRecognizers().count(), 0u);
}

}  // namespace
}  // namespace host::test
