#include "host/uikit/keyboard/keyboard_slide.h"

#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/QuartzCore/CAValue.h"
#include "tests/host/uikit/keyboard/keyboard_fixture.h"

namespace {

using namespace host;
using namespace host::uikit;

struct News {
  std::string name;
  CGRect begin, end;
  double duration;
  NSInteger curve;
};
std::vector<News> news;

void heard(NSObject, NSNotification notification) {
  const NSDictionary info = notification.userInfo();
  const auto rect = [&](NSString key) {
    return objc::cast<CAValue>(info.objectForKey(key)).CGRectValue();
  };
  const auto number = [&](NSString key) { return objc::cast<NSNumber>(info.objectForKey(key)); };
  news.push_back({notification.name().UTF8String(), rect(UIKeyboardFrameBeginUserInfoKey),
                  rect(UIKeyboardFrameEndUserInfoKey),
                  number(UIKeyboardAnimationDurationUserInfoKey).doubleValue(),
                  number(UIKeyboardAnimationCurveUserInfoKey).integerValue()});
}

struct KeyboardSlideTest : host::test::KeyboardTest {
  KeyboardSlideTest() {
    if (!objc_getClass("KeyboardListener"))
      objc::ClassBuilder("KeyboardListener", "NSObject").method<&heard>("heard:").finish();
    listener = objc::Ref<NSObject>::adopt(objc::send<NSObject>(
        objc::send<NSObject>(objc::Object(objc_getClass("KeyboardListener")), "alloc"_sel),
        "init"_sel));
    for (const NSString name : {UIKeyboardWillShowNotification, UIKeyboardDidShowNotification,
                                UIKeyboardWillHideNotification, UIKeyboardDidHideNotification})
      NSNotificationCenter::defaultCenter().addObserver(listener.get(), "heard:"_sel, name,
                                                        objc::Object());
    news.clear();
  }
  ~KeyboardSlideTest() override {
    NSNotificationCenter::defaultCenter().removeObserver(listener.get());
  }

  static std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const News& one : news)
      all.push_back(one.name);
    return all;
  }
  /// Returns where the top of the keys is currently drawn.
  double drawn_top() const { return keyboard().keys().drawn_frame().min_y(); }

  objc::Ref<NSObject> listener;
};

using Names = std::vector<std::string>;

TEST_F(KeyboardSlideTest, ComesForAFieldAndGoesWithIt) {
  EXPECT_FALSE(is_up());
  field.becomeFirstResponder();
  EXPECT_TRUE(is_up());
  EXPECT_EQ(names(), (Names{"UIKeyboardWillShowNotification"}));
  advance(0.3);
  EXPECT_EQ(names(), (Names{"UIKeyboardWillShowNotification", "UIKeyboardDidShowNotification"}));

  news.clear();
  field.resignFirstResponder();
  EXPECT_FALSE(is_up());
  EXPECT_FALSE(keyboard().window().isHidden()) << "it is still sliding away";
  advance(0.3);
  EXPECT_EQ(names(), (Names{"UIKeyboardWillHideNotification", "UIKeyboardDidHideNotification"}));
  EXPECT_TRUE(keyboard().window().isHidden());
}

TEST_F(KeyboardSlideTest, PostsWhereItMovesAndHow) {
  open();
  ASSERT_EQ(news.size(), 2U);
  for (const News& one : news) {
    EXPECT_EQ(one.begin, CGRect(0, 667, 375, 216));
    EXPECT_EQ(one.end, CGRect(0, 451, 375, 216));
    EXPECT_EQ(one.duration, 0.25);
    EXPECT_EQ(one.curve, 7);
  }
  news.clear();
  field.resignFirstResponder();
  EXPECT_EQ(news.front().begin, CGRect(0, 451, 375, 216));
  EXPECT_EQ(news.front().end, CGRect(0, 667, 375, 216));
}

TEST_F(KeyboardSlideTest, TakesAQuarterOfASecondFastAtFirst) {
  field.becomeFirstResponder();
  paint();
  EXPECT_NEAR(drawn_top(), 667, 1);
  advance(0.125);
  EXPECT_LT(drawn_top(), 451 + 216 * 0.3) << "half the time is more than two thirds of the way";
  EXPECT_GT(drawn_top(), 451);
  advance(0.13);
  EXPECT_EQ(drawn_top(), 451);
}

TEST_F(KeyboardSlideTest, StaysForTheNextField) {
  const UITextField second = add_field({20, 150, 300, 30});
  open();
  news.clear();
  second.becomeFirstResponder();
  advance(1);
  EXPECT_TRUE(news.empty());
  EXPECT_TRUE(is_up());
  tap(key("x"));
  EXPECT_STREQ(second.text().UTF8String(), "x");
  second.resignFirstResponder();
  EXPECT_FALSE(is_up());
}

TEST_F(KeyboardSlideTest, AReversedSlidePostsNoArrival) {
  field.becomeFirstResponder();
  advance(0.1);
  field.resignFirstResponder();
  advance(0.1);
  field.becomeFirstResponder();
  advance(1);
  EXPECT_EQ(names(), (Names{"UIKeyboardWillShowNotification", "UIKeyboardWillHideNotification",
                            "UIKeyboardWillShowNotification", "UIKeyboardDidShowNotification"}));
  EXPECT_FALSE(keyboard().window().isHidden());
}

TEST_F(KeyboardSlideTest, GoesWhenTheFieldLeavesTheScreenOrDies) {
  open();
  field.removeFromSuperview();
  EXPECT_FALSE(is_up());

  const UITextField brief = UITextField::alloc().initWithFrame({0, 0, 100, 30});
  brief.becomeFirstResponder();
  EXPECT_TRUE(is_up());
  brief.release();
  EXPECT_FALSE(is_up());
  window->addSubview(field);
}

TEST_F(KeyboardSlideTest, IsAboveEveryOtherWindowAndLeavesThemTheRestOfTheScreen) {
  const auto high = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame(window->bounds()));
  high->setWindowLevel(UIWindowLevelAlert + 5000);
  high->setHidden(NO);
  open();
  EXPECT_EQ(visible_windows().back(), keyboard().window());
  EXPECT_FALSE(keyboard().window().hitTest({100, 100}, nil));
  EXPECT_TRUE(keyboard().window().hitTest({100, 600}, nil));
  EXPECT_NE(key_window(), keyboard().window());
  high->setHidden(YES);
}

TEST_F(KeyboardSlideTest, KeepsItsTimingInsideAnotherAnimation) {
  UIView::animateWithDuration(3, objc::block([this] { field.becomeFirstResponder(); }));
  advance(0.3);
  EXPECT_EQ(names().size(), 2U);
  EXPECT_EQ(drawn_top(), 451);
  advance(3);
}

TEST_F(KeyboardSlideTest, NeverRedrawsItsKeysOnTheWay) {
  field.becomeFirstResponder();
  paint();
  const int before = keyboard().keys().drawings();
  for (int frame = 0; frame < 20; ++frame) {
    advance(1.0 / 60);
    paint();
  }
  EXPECT_EQ(keyboard().keys().drawings(), before);
}

TEST_F(KeyboardSlideTest, AtRestPaintsNothingAndRequestsNoFrames) {
  open();
  paint();
  EXPECT_FALSE(loop.wants_frames());
  advance(0.3);
  EXPECT_FALSE(loop.wants_frames());
  for (const auto& part : paint())
    EXPECT_LT(part.y + part.height, 451 * 2) << "the keyboard is not painted again";
}

TEST_F(KeyboardSlideTest, LooksAsTheFieldRequests) {
  open();
  const int light = keyboard().keys().drawings();
  field.setKeyboardAppearance(UIKeyboardAppearanceDark);
  field.setReturnKeyType(UIReturnKeySearch);
  field.reloadInputViews();
  paint();
  EXPECT_EQ(keyboard().keys().drawings(), light + 1);
  EXPECT_EQ(keyboard().keys().layout().first_of(KeyKind::Return)->label, "Search");
}

}  // namespace
