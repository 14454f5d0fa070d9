#include "host/uikit/text/text_field.h"

#include <string>
#include <vector>

#include "host/uikit/text/key_input.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/host/uikit/support/view_test.h"

namespace {

using host::uikit::press_key;
using host::uikit::type_text;

std::vector<std::string> news;
BOOL answer_to_begin = YES;
BOOL answer_to_end = YES;
BOOL answer_to_change = YES;
BOOL answer_to_return = YES;

BOOL should_begin(NSObject, UITextField) {
  news.push_back("should begin");
  return answer_to_begin;
}
void did_begin(NSObject, UITextField) {
  news.push_back("did begin");
}
BOOL should_end(NSObject, UITextField) {
  return answer_to_end;
}
void did_end(NSObject, UITextField) {
  news.push_back("did end");
}
BOOL should_change(NSObject, UITextField, NSRange range, NSString text) {
  news.push_back("change " + std::to_string(range.location) + "+" + std::to_string(range.length) +
                 " " + text.UTF8String());
  return answer_to_change;
}
BOOL should_return(NSObject, UITextField) {
  news.push_back("should return");
  return answer_to_return;
}
void text_changed(NSObject, UITextField field) {
  news.push_back(std::string("changed to ") + field.text().UTF8String());
}

void make_listener_class() {
  if (objc_getClass("TextFieldListener")) return;
  objc::ClassBuilder("TextFieldListener", "NSObject")
      .method<&should_begin>("textFieldShouldBeginEditing:")
      .method<&did_begin>("textFieldDidBeginEditing:")
      .method<&should_end>("textFieldShouldEndEditing:")
      .method<&did_end>("textFieldDidEndEditing:")
      .method<&should_change>("textField:shouldChangeCharactersInRange:replacementString:")
      .method<&should_return>("textFieldShouldReturn:")
      .method<&text_changed>("textDidChange:")
      .finish();
}

class TextField : public host::test::TextViewTest {
 protected:
  TextField() {
    make_listener_class();
    news.clear();
    answer_to_begin = answer_to_end = answer_to_change = answer_to_return = YES;
    window_ = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame({0, 0, 375, 667}));
    field = UITextField::alloc().initWithFrame({0, 0, 200, 25}).autorelease();
    window_->addSubview(field);
    listener_ = objc::Ref<NSObject>::adopt(objc::send<NSObject>(
        objc::send<NSObject>(objc::Object(objc_getClass("TextFieldListener")), "alloc"_sel),
        "init"_sel));
    field.setDelegate(listener_.get());
    field.addTarget(listener_.get(), "textDidChange:"_sel, UIControlEventEditingChanged);
  }
  ~TextField() override { host::uikit::end_text_input(); }

  std::string text() const { return field.text().UTF8String(); }
  const host::uikit::Caret& caret() const {
    return objc::state_of<host::uikit::TextField>(field).caret();
  }

  UITextField field;

 private:
  objc::Ref<UIWindow> window_;
  objc::Ref<NSObject> listener_;
};

TEST_F(TextField, StartsEmptyAndNeverHasNilText) {
  EXPECT_EQ(text(), "");
  field.setText(nil);
  EXPECT_EQ(text(), "");
  EXPECT_FALSE(field.hasText());
}

TEST_F(TextField, TypingTellsDelegateAndTargetOfEveryCharacter) {
  field.becomeFirstResponder();
  news.clear();

  EXPECT_TRUE(type_text("be"_ns));

  EXPECT_EQ(text(), "be");
  EXPECT_EQ(news, (std::vector<std::string>{"change 0+0 b", "changed to b", "change 1+0 e",
                                            "changed to be"}));
}

TEST_F(TextField, SettingTheTextNotifiesNoObserver) {
  field.setText("set"_ns);
  EXPECT_TRUE(news.empty());
}

TEST_F(TextField, MayRefuseToResignUntilTheSystemEndsAllInput) {
  field.becomeFirstResponder();
  news.clear();
  answer_to_end = NO;
  EXPECT_FALSE(field.resignFirstResponder());
  EXPECT_TRUE(field.isEditing());
  host::uikit::end_text_input();
  EXPECT_FALSE(field.isFirstResponder());
  EXPECT_FALSE(field.isEditing());
  EXPECT_EQ(news, (std::vector<std::string>{"did end"}));
  field.becomeFirstResponder();
  EXPECT_FALSE(field.resignFirstResponder()) << "and is asked again the next time";
}

TEST_F(TextField, TypingGoesNowhereWithoutAFirstResponder) {
  EXPECT_FALSE(type_text("a"_ns));
  EXPECT_FALSE(press_key("return"));
  EXPECT_EQ(text(), "");
}

TEST_F(TextField, EditingBeginsAndEndsInOrder) {
  EXPECT_TRUE(field.becomeFirstResponder());
  EXPECT_TRUE(field.isEditing());
  EXPECT_TRUE(field.resignFirstResponder());
  EXPECT_FALSE(field.isEditing());
  EXPECT_EQ(news, (std::vector<std::string>{"should begin", "did begin", "did end"}));
}

TEST_F(TextField, ADelegateCanForbidEditing) {
  answer_to_begin = NO;
  EXPECT_FALSE(field.becomeFirstResponder());
  EXPECT_FALSE(field.isFirstResponder());
}

TEST_F(TextField, ADelegateCanForbidAChange) {
  field.becomeFirstResponder();
  answer_to_change = NO;

  type_text("x"_ns);

  EXPECT_EQ(text(), "");
}

TEST_F(TextField, ReturnAsksTheDelegateAndTypesNothing) {
  field.becomeFirstResponder();
  news.clear();

  press_key("return");

  EXPECT_EQ(news, (std::vector<std::string>{"should return"}));
  EXPECT_EQ(text(), "");
  EXPECT_TRUE(field.isFirstResponder()) << "leaving is the delegate's to decide";
}

TEST_F(TextField, BackspaceDeletesAWholeCharacter) {
  field.becomeFirstResponder();
  field.setText(NSString::stringWithUTF8String("a\U0001F600e\u0301"));

  press_key("backspace");
  EXPECT_EQ(text(), "a\U0001F600");
  press_key("backspace");
  EXPECT_EQ(text(), "a");
  press_key("backspace");
  press_key("backspace");
  EXPECT_EQ(text(), "");
}

TEST_F(TextField, TypingInsertsAtTheCaret) {
  field.becomeFirstResponder();
  type_text("ac"_ns);
  press_key("left");
  type_text("b"_ns);
  EXPECT_EQ(text(), "abc");

  press_key("home");
  type_text("_"_ns);
  press_key("end");
  type_text("!"_ns);
  EXPECT_EQ(text(), "_abc!");
}

TEST_F(TextField, ComposedTextIsReplacedByTheChosenText) {
  field.becomeFirstResponder();
  type_text("x"_ns);

  host::uikit::compose_text("ni"_ns, 2);
  EXPECT_EQ(text(), "xni");
  host::uikit::compose_text("nih"_ns, 3);
  EXPECT_EQ(text(), "xnih");
  type_text(NSString::stringWithUTF8String("日"));

  EXPECT_EQ(text(), "x日");
}

TEST_F(TextField, TheCaretBlinksOnlyWhileEditing) {
  field.becomeFirstResponder();
  field.layoutIfNeeded();
  ASSERT_TRUE(caret().is_lit());

  advance(0.6);
  EXPECT_FALSE(caret().is_lit());
  advance(0.5);
  EXPECT_TRUE(caret().is_lit());

  field.resignFirstResponder();
  EXPECT_FALSE(caret().is_shown());
}

TEST_F(TextField, TheCaretFollowsTheText) {
  field.becomeFirstResponder();
  field.layoutIfNeeded();
  const double at_start = caret().frame().min_x();

  type_text("wide words"_ns);
  field.layoutIfNeeded();

  EXPECT_GT(caret().frame().min_x(), at_start + 40);
}

TEST_F(TextField, LongTextScrollsToKeepTheCaretInSight) {
  field.becomeFirstResponder();
  type_text("a text that is very much longer than this small field can ever show"_ns);
  field.layoutIfNeeded();
  EXPECT_LE(caret().frame().max_x(), 200);

  press_key("home");
  field.layoutIfNeeded();
  EXPECT_NEAR(caret().frame().min_x(), 0, 0.5);
}

TEST_F(TextField, TheTextBeginsBesideTheLeftView) {
  const UIView icon = UIView::alloc().initWithFrame({0, 0, 30, 20}).autorelease();
  field.setLeftView(icon);
  EXPECT_EQ(field.textRectForBounds(field.bounds()).min_x(), 0);

  field.setLeftViewMode(UITextFieldViewModeAlways);
  field.layoutIfNeeded();

  EXPECT_EQ(field.textRectForBounds(field.bounds()).min_x(), 30);
  EXPECT_EQ(icon.superview(), field);
  EXPECT_EQ(icon.frame(), (CGRect{0, 2.5, 30, 20}));
}

TEST_F(TextField, APlainPlaceholderIsAnAttributedOneToo) {
  field.setPlaceholder("Search"_ns);
  EXPECT_STREQ(field.attributedPlaceholder().string().UTF8String(), "Search");
  field.setPlaceholder(nil);
  EXPECT_FALSE(field.placeholder());
}

}  // namespace
