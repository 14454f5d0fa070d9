#pragma once

#include <vector>

#include "host/uikit/view/view.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::uikit {

/// Owns a view, created on first use, and presents other controllers over it.
class ViewController : public objc::Implementation<ViewController, UIViewController> {
 public:
  explicit ViewController(UIViewController owner) : Implementation(owner) {}
  ~ViewController();

  UIView view();
  void set_view(UIView view);
  BOOL is_view_loaded() const { return static_cast<bool>(view_); }
  void load_view();
  void view_did_load() {}
  void view_will_appear(BOOL) {}
  void view_did_appear(BOOL) {}
  void view_will_disappear(BOOL) {}
  void view_did_disappear(BOOL) {}
  void view_will_layout_subviews() {}
  void view_did_layout_subviews() {}
  UIResponder next_responder();
  NSString title() const { return title_.get(); }
  void set_title(NSString title);
  BOOL should_autorotate() { return YES; }
  NSUInteger supported_interface_orientations();
  BOOL should_autorotate_to(UIInterfaceOrientation orientation) {
    return orientation == UIInterfaceOrientationPortrait ? YES : NO;
  }
  UIInterfaceOrientation preferred_orientation() { return UIInterfaceOrientationPortrait; }
  UIInterfaceOrientation orientation() const { return UIInterfaceOrientationPortrait; }
  UINavigationItem navigation_item();
  UINavigationController navigation_controller() const;
  BOOL adjusts_insets() const { return adjusts_insets_; }
  void set_adjusts_insets(BOOL adjusts) { adjusts_insets_ = adjusts; }

  UIViewController parent() const { return parent_; }
  NSArray children() const;
  void add_child(UIViewController child);
  void remove_from_parent();
  void will_move_to_parent(UIViewController) {}
  void did_move_to_parent(UIViewController) {}

  UIModalPresentationStyle modal_presentation_style() const { return presentation_style_; }
  void set_modal_presentation_style(UIModalPresentationStyle style) { presentation_style_ = style; }
  UIViewController presented() const;
  UIViewController presenting() const;
  void present(UIViewController controller, BOOL animated, objc::Block<void()> completion);
  void dismiss(BOOL animated, objc::Block<void()> completion);
  void present_modal(UIViewController controller, BOOL animated);
  void dismiss_modal(BOOL animated);
  /// The view's place before it is presented and after it is dismissed, and while it is presented.
  /// `place` is the area available in the window. Controllers that do not slide in from below
  /// override these.
  void place_off_screen(CGRect place);
  void place_on_screen(CGRect place);

  /// Removes, without animation, whatever is presented: its window no longer has a place for it.
  void end_presentation();

 private:
  UIViewController presenter() const;

  objc::Ref<UIView> view_;
  objc::Ref<NSString> title_;
  objc::Ref<UINavigationItem> navigation_item_;
  std::vector<objc::Ref<UIViewController>> children_;
  UIViewController parent_;
  objc::Ref<UIViewController> presented_;
  UIViewController presenting_;
  UIModalPresentationStyle presentation_style_ = UIModalPresentationFullScreen;
  BOOL adjusts_insets_ = YES;
};

void export_view_controller();

}  // namespace host::uikit
