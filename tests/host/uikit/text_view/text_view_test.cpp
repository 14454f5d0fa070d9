#include "host/uikit/text_view/text_view.h"

#include <optional>
#include <string>
#include <vector>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/uikit/scroll/exports.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/touch/touch_input.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/host/uikit/support/view_test.h"

namespace {

using host::uikit::press_key;
using host::uikit::type_text;

constexpr CGFloat kWidth = 200;
constexpr CGFloat kHeight = 100;
constexpr CGFloat kLine = 20;  // approximately, at 17 points

std::vector<std::string> news;
BOOL answer_to_begin = YES;
BOOL answer_to_end = YES;
BOOL answer_to_change = YES;

BOOL should_begin(NSObject, UITextView) {
  news.push_back("should begin");
  return answer_to_begin;
}
void did_begin(NSObject, UITextView) {
  news.push_back("did begin");
}
BOOL should_end(NSObject, UITextView) {
  return answer_to_end;
}
void did_end(NSObject, UITextView) {
  news.push_back("did end");
}
BOOL should_change(NSObject, UITextView, NSRange range, NSString text) {
  news.push_back("change " + std::to_string(range.location) + "+" + std::to_string(range.length) +
                 " " + text.UTF8String());
  return answer_to_change;
}
void did_change(NSObject, UITextView view) {
  news.push_back(std::string("changed to ") + view.text().UTF8String());
}

void make_listener_class() {
  if (objc_getClass("TextViewListener")) return;
  objc::ClassBuilder("TextViewListener", "NSObject")
      .method<&should_begin>("textViewShouldBeginEditing:")
      .method<&did_begin>("textViewDidBeginEditing:")
      .method<&should_end>("textViewShouldEndEditing:")
      .method<&did_end>("textViewDidEndEditing:")
      .method<&should_change>("textView:shouldChangeTextInRange:replacementText:")
      .method<&did_change>("textViewDidChange:")
      .finish();
}

NSString from_utf8(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

class TextView : public host::test::TextViewTest {
 protected:
  TextView() : layers_(std::make_unique<host::quartzcore::LayerService>(loop)) {
    host::uikit::export_scroll();
    host::uikit::export_text_view();
    make_listener_class();
    news.clear();
    answer_to_begin = answer_to_end = answer_to_change = YES;
    window_ = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame({0, 0, 375, 667}));
    window_->setHidden(NO);
    view = UITextView::alloc().initWithFrame({0, 0, kWidth, kHeight}).autorelease();
    view.setFont(UIFont::systemFontOfSize(17));
    window_->addSubview(view);
    listener_ = objc::Ref<NSObject>::adopt(objc::send<NSObject>(
        objc::send<NSObject>(objc::Object(objc_getClass("TextViewListener")), "alloc"_sel),
        "init"_sel));
    view.setDelegate(listener_.get());
  }
  ~TextView() override {
    host::uikit::end_text_input();
    input_.cancel_all(clock.now());
    window_->setHidden(YES);
    window_.reset();
    advance(2);
    layers_.reset();
  }

  std::string text() const { return view.text().UTF8String(); }
  host::uikit::TextView& state() const { return objc::state_of<host::uikit::TextView>(view); }
  CGRect caret() const {
    view.layoutIfNeeded();
    return state().caret().frame();
  }
  std::size_t caret_index() const { return state().caret_index(); }
  void edit(const std::string& contents) {
    view.setText(from_utf8(contents));
    view.becomeFirstResponder();
    view.layoutIfNeeded();
    news.clear();
  }
  void tap(CGPoint point) {
    input_.began(0, point, clock.now());
    advance(0.05);
    input_.ended(0, point, clock.now());
    advance(0.5);
  }
  /// Returns how dark the screen is within a rectangle in points: 0 when nothing is drawn on white.
  long ink_in(CGRect rect) {
    view.setBackgroundColor(UIColor::whiteColor());
    window_->setBackgroundColor(UIColor::whiteColor());
    host::quartzcore::flush_layers();
    host::quartzcore::Compositor compositor(375, 667, 1);
    const std::vector<CALayer> roots{window_->layer()};
    compositor.render(roots, clock.now());
    cairo_surface_t* surface = compositor.surface().get();
    cairo_surface_flush(surface);
    const unsigned char* pixels = cairo_image_surface_get_data(surface);
    long ink = 0;
    for (int y = static_cast<int>(rect.min_y()); y < static_cast<int>(rect.max_y()); ++y) {
      for (int x = static_cast<int>(rect.min_x()); x < static_cast<int>(rect.max_x()); ++x)
        ink += 255 - pixels[y * cairo_image_surface_get_stride(surface) + x * 4 + 1];
    }
    return ink;
  }

  UITextView view;

 private:
  std::unique_ptr<host::quartzcore::LayerService> layers_;
  objc::Ref<UIWindow> window_;
  objc::Ref<NSObject> listener_;
  host::uikit::TouchInput input_;
};

TEST_F(TextView, MayRefuseToResignUntilTheSystemEndsAllInput) {
  edit("abc");
  answer_to_end = NO;
  EXPECT_FALSE(view.resignFirstResponder());
  host::uikit::end_text_input();
  EXPECT_FALSE(view.isFirstResponder());
  EXPECT_EQ(news, (std::vector<std::string>{"did end"}));
}

TEST_F(TextView, StartsEmptyAndNeverHasNilText) {
  EXPECT_EQ(text(), "");
  view.setText(nil);
  EXPECT_EQ(text(), "");
  EXPECT_FALSE(view.hasText());
  EXPECT_TRUE(view.isEditable());
}

TEST_F(TextView, TypingTellsTheDelegateOfEveryCharacter) {
  edit("");
  type_text("be"_ns);
  EXPECT_EQ(text(), "be");
  EXPECT_EQ(news, (std::vector<std::string>{"change 0+0 b", "changed to b", "change 1+0 e",
                                            "changed to be"}));
}

TEST_F(TextView, SettingTheTextNotifiesNoObserver) {
  view.setText("set"_ns);
  EXPECT_TRUE(news.empty());
}

TEST_F(TextView, ADelegateCanForbidEditingAndEveryChange) {
  answer_to_begin = NO;
  EXPECT_FALSE(view.becomeFirstResponder());
  answer_to_begin = YES;
  edit("kept");
  answer_to_change = NO;
  type_text("x"_ns);
  press_key("backspace");
  EXPECT_EQ(text(), "kept");
}

TEST_F(TextView, ANonEditableViewTakesNoText) {
  edit("kept");
  view.setEditable(NO);
  EXPECT_FALSE(view.isFirstResponder()) << "editing stops";
  EXPECT_FALSE(view.becomeFirstResponder());
  view.insertText("x"_ns);
  view.deleteBackward();
  EXPECT_EQ(text(), "kept");
}

TEST_F(TextView, EditingBeginsAndEndsInOrder) {
  EXPECT_TRUE(view.becomeFirstResponder());
  EXPECT_TRUE(view.resignFirstResponder());
  EXPECT_EQ(news, (std::vector<std::string>{"should begin", "did begin", "did end"}));
}

TEST_F(TextView, ReturnBeginsANewLine) {
  edit("one");
  press_key("return");
  EXPECT_NEAR(caret().min_y(), 8 + kLine, 2) << "the caret goes there before anything is typed";
  type_text("two"_ns);
  EXPECT_EQ(text(), "one\ntwo");
}

TEST_F(TextView, LongTextIsWrappedAtTheWidth) {
  edit("x");
  const CGFloat one_line = view.contentSize().height;
  edit(repeated("word ", 12));
  EXPECT_GT(view.contentSize().height, one_line + kLine);
  EXPECT_EQ(view.contentSize().width, kWidth);
  EXPECT_LE(caret().max_x(), kWidth);

  view.setFrame({0, 0, 2 * kWidth, kHeight});
  const CGFloat narrow = view.contentSize().height;
  view.layoutIfNeeded();
  EXPECT_LT(view.contentSize().height, narrow) << "wrapped again for the new width";
}

TEST_F(TextView, AWordLongerThanTheWidthIsBroken) {
  edit(repeated("x", 100));
  EXPECT_GT(view.contentSize().height, 3 * kLine);
  EXPECT_LE(caret().max_x(), kWidth);
}

TEST_F(TextView, TypingKeepsTheCaretInSight) {
  edit("");
  for (int line = 0; line < 12; ++line)
    type_text("a\n"_ns);
  view.layoutIfNeeded();
  const CGRect visible = view.bounds();
  EXPECT_GT(visible.min_y(), 0);
  EXPECT_LE(caret().max_y(), visible.max_y());
  EXPECT_GE(caret().min_y(), visible.min_y());

  for (int line = 0; line < 12; ++line)
    press_key("up");
  view.layoutIfNeeded();
  EXPECT_EQ(view.contentOffset().y, 0) << "the margin above the first line comes along";
}

TEST_F(TextView, ScrollingAwayFromTheCaretIsNotUndone) {
  edit(repeated("a\n", 20));
  ASSERT_GT(view.contentOffset().y, 0);
  view.setContentOffset({0, 0});
  view.layoutIfNeeded();
  advance(0.1);
  EXPECT_EQ(view.contentOffset().y, 0);
}

TEST_F(TextView, UpAndDownKeepTheirColumnAcrossAShortLine) {
  edit("a long line\nb\na long line");
  press_key("up");
  EXPECT_EQ(caret_index(), 13u) << "behind the b";
  press_key("up");
  EXPECT_EQ(caret_index(), 11u) << "at the end of the first line, not below the b";
  press_key("up");
  EXPECT_EQ(caret_index(), 0u);
  press_key("down");
  press_key("down");
  press_key("down");
  EXPECT_EQ(caret_index(), 25u);
}

TEST_F(TextView, HomeAndEndGoToTheEndsOfTheLine) {
  edit("one\ntwo\nthree");
  press_key("up");
  press_key("home");
  EXPECT_EQ(caret_index(), 4u);
  press_key("end");
  EXPECT_EQ(caret_index(), 7u);
}

TEST_F(TextView, EndOfAWrappedLineStaysOnIt) {
  edit(repeated("word ", 12));
  for (int line = 0; line < 5; ++line)
    press_key("up");
  ASSERT_EQ(caret_index(), 0u);
  const CGFloat top = caret().min_y();
  press_key("end");
  EXPECT_EQ(caret().min_y(), top);
  EXPECT_GT(caret().min_x(), kWidth / 2);
}

TEST_F(TextView, UnknownKeysAreNotHandled) {
  edit("text");
  EXPECT_FALSE(press_key("tab"));
  EXPECT_EQ(caret_index(), 4u);
}

TEST_F(TextView, EscapeEndsEditing) {
  edit("text");
  EXPECT_TRUE(press_key("escape"));
  EXPECT_FALSE(view.isFirstResponder());
  EXPECT_FALSE(state().caret().is_shown());
}

TEST_F(TextView, BackspaceDeletesAWholeCharacter) {
  edit("a\U0001F468\u200D\U0001F469\u200D\U0001F467e\u0301");
  press_key("backspace");
  EXPECT_EQ(text(), "a\U0001F468\u200D\U0001F469\u200D\U0001F467");
  press_key("backspace");
  EXPECT_EQ(text(), "a");
  press_key("backspace");
  press_key("backspace");
  EXPECT_EQ(text(), "");
}

TEST_F(TextView, ATapPutsTheCaretOnItsLine) {
  edit("one\ntwo\nthree");
  tap({100, 8 + 1.5 * kLine});
  EXPECT_EQ(caret_index(), 7u) << "behind the second line";
  tap({2, 8 + 1.5 * kLine});
  EXPECT_EQ(caret_index(), 4u) << "before it";
  tap({2, 2});
  EXPECT_EQ(caret_index(), 0u);
  tap({100, 95});
  EXPECT_EQ(caret_index(), 13u) << "below everything";
}

TEST_F(TextView, ATapBeginsEditing) {
  view.setText("text"_ns);
  view.layoutIfNeeded();
  tap({50, 20});
  EXPECT_TRUE(view.isFirstResponder());
  EXPECT_TRUE(state().caret().is_shown());
}

TEST_F(TextView, RightToLeftTextBeginsAtTheRightAndIsTypedToTheLeft) {
  edit("שלום");
  const CGFloat behind = caret().min_x();
  EXPECT_GT(behind, kWidth / 2);
  press_key("home");
  const CGFloat before = caret().min_x();
  EXPECT_GT(before, behind) << "it begins at the right";
  EXPECT_NEAR(before, kWidth - 5, 3);
  EXPECT_EQ(ink_in({0, 0, kWidth / 2, kHeight}), 0);
}

TEST_F(TextView, ComposedTextIsReplacedByTheChosenText) {
  edit("x");
  host::uikit::compose_text("ni"_ns, 2);
  EXPECT_EQ(text(), "xni");
  host::uikit::compose_text("nih"_ns, 3);
  EXPECT_EQ(text(), "xnih");
  type_text(from_utf8("日"));
  EXPECT_EQ(text(), "x日");
}

TEST_F(TextView, TheVisiblePartIsDrawnWhereverTheTextIsScrolledTo) {
  edit("at the top");
  EXPECT_GT(ink_in({0, 8, kWidth - 10, kLine}), 1000);
  edit(repeated("\n", 40) + "at the end");
  view.resignFirstResponder();
  view.setContentOffset({0, 0});
  advance(0.1);
  EXPECT_EQ(ink_in({0, 0, kWidth - 10, kHeight}), 0) << "forty empty lines";
  view.setContentOffset({0, view.contentSize().height - kHeight});
  advance(0.1);
  EXPECT_GT(ink_in({0, kHeight - 8 - kLine, kWidth - 10, kLine}), 1000);
}

TEST_F(TextView, ALongTextNeedsNoMoreMemoryThanItsView) {
  edit(repeated("\U0001F600e\u0301 ab ", 1250));
  EXPECT_GT(view.contentSize().height, 5000);
  EXPECT_LE(caret().max_y(), view.bounds().max_y());
  for (NSUInteger at = 0; at < view.subviews().count(); ++at) {
    const CGSize size = objc::cast<UIView>(view.subviews().objectAtIndex(at)).bounds().size;
    EXPECT_LE(size.height, kHeight + 1);
  }
  type_text("!"_ns);
  EXPECT_TRUE(view.text().hasSuffix("!"_ns));
}

TEST_F(TextView, HalfACharacterIsDrawnAsAReplacementCharacter) {
  const NSString broken = from_utf8("\U0001F600").substringToIndex(1);
  edit("");
  view.setText(broken);
  view.layoutIfNeeded();
  EXPECT_EQ(view.text().length(), 1u);
  press_key("left");
  EXPECT_EQ(caret_index(), 0u);
}

}  // namespace
