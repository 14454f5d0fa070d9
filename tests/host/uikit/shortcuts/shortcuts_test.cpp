#include "host/uikit/shortcuts/shortcuts.h"

#include "host/uikit/text/key_input.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITextField.h"
#include "tests/host/uikit/support/page_test.h"

namespace host::test {
namespace {

using uikit::perform_shortcut;

class ShortcutTest : public PageTest {
 protected:
  ShortcutTest() {
    first = ToldPage::make("First");
    second = ToldPage::make("Second");
    navigation = UINavigationController::alloc().initWithRootViewController(first).autorelease();
  }
  void show_pages() {
    window.setRootViewController(navigation);
    navigation.pushViewController(second, NO);
    advance(0.1);
  }
  static objc::Ref<UITextField> add_field(UIView parent, CGRect frame) {
    auto field = objc::adopt(UITextField::alloc().initWithFrame(frame));
    parent.addSubview(*field);
    return field;
  }

  UIViewController first;
  UIViewController second;
  UINavigationController navigation;
};

TEST_F(ShortcutTest, EscapeGoesBackToTheFirstPageOnly) {
  show_pages();
  EXPECT_TRUE(perform_shortcut("escape"));
  EXPECT_FALSE(perform_shortcut("escape")) << "while the pages move";
  advance(1);
  EXPECT_EQ(navigation.topViewController(), first);
  EXPECT_FALSE(perform_shortcut("escape"));
  EXPECT_EQ(navigation.topViewController(), first);
}

TEST_F(ShortcutTest, EscapeLeavesPagesBehindAPresentedOneAlone) {
  show_pages();
  navigation.presentViewController(ToldPage::make("Sheet"), NO, nullptr);
  advance(1);
  EXPECT_FALSE(perform_shortcut("escape"));
  EXPECT_EQ(navigation.topViewController(), second);
}

TEST_F(ShortcutTest, EscapeNeedsANavigation) {
  EXPECT_FALSE(perform_shortcut("escape"));
  window.setRootViewController(first);
  advance(0.1);
  EXPECT_FALSE(perform_shortcut("escape"));
}

TEST_F(ShortcutTest, ControlFGivesTheKeyboardToTheFirstFieldThatIsSeen) {
  const auto hidden = add_field(window, {20, 60, 200, 30});
  hidden->setHidden(YES);
  const auto outside = add_field(window, {20, -100, 200, 30});
  const auto seen = add_field(window, {20, 100, 200, 30});
  const auto later = add_field(window, {20, 200, 200, 30});
  EXPECT_TRUE(perform_shortcut("control-f"));
  EXPECT_EQ(seen->isFirstResponder(), YES);
  for (const auto& field : {hidden, outside, seen, later})
    field->removeFromSuperview();
}

TEST_F(ShortcutTest, ControlFScrollsAFieldIntoSight) {
  const auto list = objc::adopt(UIScrollView::alloc().initWithFrame({0, 0, 375, 667}));
  list->setContentSize({375, 3000});
  window.addSubview(*list);
  const auto field = add_field(*list, {20, 10, 200, 30});
  list->setContentOffset({0, 500});
  EXPECT_TRUE(perform_shortcut("control-f"));
  advance(1);
  EXPECT_EQ(field->isFirstResponder(), YES);
  EXPECT_EQ(list->contentOffset().y, 10);
  field->resignFirstResponder();
  list->setHidden(YES);
  EXPECT_FALSE(perform_shortcut("control-f"));
  list->removeFromSuperview();
}

TEST_F(ShortcutTest, OtherKeysAreNoShortcuts) {
  EXPECT_FALSE(perform_shortcut("control-x"));
}

TEST_F(ShortcutTest, TheCaretIsWhereTextIsTyped) {
  EXPECT_FALSE(uikit::caret_on_screen());
  const auto field = add_field(window, {20, 100, 200, 30});
  field->becomeFirstResponder();
  field->setText("abc"_ns);
  advance(0.1);
  const auto caret = uikit::caret_on_screen();
  ASSERT_TRUE(caret);
  EXPECT_TRUE(CGRect(field->frame()).contains(caret->origin));
  uikit::type_text("d"_ns);
  advance(0.1);
  EXPECT_GT(uikit::caret_on_screen()->min_x(), caret->min_x());
  uikit::press_key("control-a");
  advance(0.1);
  EXPECT_TRUE(uikit::caret_on_screen()) << "with a selection";
  field->resignFirstResponder();
  EXPECT_FALSE(uikit::caret_on_screen());
  field->removeFromSuperview();
}

}  // namespace
}  // namespace host::test
