#include "host/uikit/shortcuts/shortcuts.h"

#include "host/uikit/focus/focus.h"
#include "host/uikit/focus/focus_scrolling.h"
#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/touch/touch_input.h"
#include "objc/ref.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITextField.h"

namespace host::uikit {
namespace {

constexpr NSUInteger kPagesToGoBack = 2;

/// The page of this window that nothing else covers.
UIViewController front_page(UIWindow window) {
  UIViewController page = window.rootViewController();
  while (page.presentedViewController())
    page = page.presentedViewController();
  return page;
}

/// The innermost navigation that contains the front page, or that it contains.
UINavigationController navigation_of(UIViewController page) {
  for (const auto child : page.childViewControllers().of<UIViewController>()) {
    if (const UINavigationController found = navigation_of(child)) return found;
  }
  if (!page.isKindOfClass(UINavigationController::cls())) return nil;
  return objc::cast<UINavigationController>(page);
}

bool takes_touches(UIView view) {
  const auto centre = centre_on_screen(view);
  const UIView hit = centre ? hit_of_pointer(*centre).view : UIView();
  return hit && hit.isDescendantOfView(view);
}

bool focus(UITextField field) {
  if (!field.canBecomeFirstResponder() || field.isHidden()) return false;
  const UIScrollView around = scroll_view_around(field);
  const bool is_seen = takes_touches(field);
  if (!is_seen && !takes_touches(around)) return false;
  if (!is_seen) around.scrollRectToVisible(convert_rect(field, field.bounds(), around), YES);
  return field.becomeFirstResponder();
}

bool focus_field_in(UIView view) {
  if (view.isKindOfClass(UITextField::cls()) && focus(objc::cast<UITextField>(view))) return true;
  for (const UIView part : view.subviews().of<UIView>()) {
    if (focus_field_in(part)) return true;
  }
  return false;
}

}  // namespace

bool go_back() {
  const auto windows = visible_windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    const UIViewController page = front_page(*window);
    if (!page) continue;
    // Nothing in a window takes touches while pages come and go there.
    const UINavigationController navigation = navigation_of(page);
    if (!navigation || !takes_touches(navigation.topViewController().view())) return false;
    if (navigation.viewControllers().count() < kPagesToGoBack) return false;
    navigation.popViewControllerAnimated(YES);
    return true;
  }
  return false;
}

bool focus_search_field() {
  const auto windows = visible_windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (focus_field_in(*window)) return true;
  }
  return false;
}

bool take_key(std::string_view key) {
  if (!caret_on_screen()) return perform_shortcut(key);
  const bool leaves = key == "tab" || key == "shift-tab";
  return press_key(key) || (leaves && perform_shortcut(key));
}

bool perform_shortcut(std::string_view key) {
  if (key == "escape") return go_back();
  if (key == "control-f") return focus_search_field();
  Focus* focus = Focus::current();
  return focus && focus->press_key(key);
}

}  // namespace host::uikit
