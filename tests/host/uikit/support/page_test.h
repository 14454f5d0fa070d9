#pragma once

#include "host/uikit/alert/exports.h"
#include "host/uikit/navigation/exports.h"
#include "host/uikit/pages/exports.h"
#include "host/uikit/picker/exports.h"
#include "host/uikit/scroll/exports.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UITableView.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/uikit_test.h"
#include "tests/support/photograph.h"

namespace host::test {

/// A page that records the messages it gets under its title.
class ToldPage : public objc::Implementation<ToldPage, UIViewController> {
 public:
  using Implementation::Implementation;

  void will_appear(BOOL animated) {
    super("viewWillAppear:"_sel, animated);
    tell("will appear");
    if (on_appear) on_appear();
  }
  void did_appear(BOOL) { tell("did appear"); }
  void will_disappear(BOOL) { tell("will disappear"); }
  void did_disappear(BOOL) { tell("did disappear"); }

  static UIViewController make(const char* title) {
    if (!objc_getClass("TestToldPage")) {
      objc::ClassBuilder("TestToldPage", "UIViewController")
          .state<ToldPage>()
          .method<&ToldPage::will_appear>("viewWillAppear:")
          .method<&ToldPage::did_appear>("viewDidAppear:")
          .method<&ToldPage::will_disappear>("viewWillDisappear:")
          .method<&ToldPage::did_disappear>("viewDidDisappear:")
          .finish();
    }
    const objc::Object cls(objc_getClass("TestToldPage"));
    const auto page =
        objc::send<UIViewController>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel)
            .autorelease();
    page.setTitle(NSString::stringWithUTF8String(title));
    return page;
  }

  std::function<void()> on_appear;

 private:
  void tell(const char* what) {
    UIKitTest::events().push_back(std::string(self.title().UTF8String()) + " " + what);
  }
};

/// A phone's screen on which pages are pushed and popped.
class PageTest : public UIKitTest {
 public:
  // Points on a bar, and where a finger drags a page away.
  static constexpr CGPoint kBack{30, 42};
  static constexpr CGPoint kRightButton{350, 42};
  static constexpr CGPoint kEdge{3, 300};

  PageTest() {
    uikit::export_scroll();
    uikit::export_alert();
    uikit::export_navigation();
    uikit::export_pages();
    uikit::export_picker();
    window.setBackgroundColor(UIColor::whiteColor());
  }
  ~PageTest() override { window.setRootViewController(nil); }

  static bool shows(UIView view, NSString text) {
    if (view.isHidden() || view.alpha() < 0.5) return false;
    if (view.isKindOfClass(UILabel::cls()) &&
        objc::cast<UILabel>(view).text().isEqualToString(text))
      return true;
    for (const UIView part : view.subviews().of<UIView>())
      if (shows(part, text)) return true;
    return false;
  }
};

}  // namespace host::test
