#pragma once

#include <optional>

#include "host/uikit/view/view.h"
#include "platform/UIKit/UIViewController.h"

namespace host::uikit {

/// The root of a tree of views on the screen. A new window is hidden, and is listed only once
/// shown.
class Window : public objc::Implementation<Window, UIWindow> {
 public:
  explicit Window(UIWindow owner) : Implementation(owner) {}
  ~Window();

  UIWindow init_with_frame(CGRect frame);
  UIResponder next_responder();
  void set_hidden(BOOL hidden);
  UIWindowLevel window_level() const { return level_; }
  void set_window_level(UIWindowLevel level) { level_ = level; }
  UIScreen screen() const;
  UIViewController root_view_controller() const { return root_controller_.get(); }
  void set_root_view_controller(UIViewController controller);
  BOOL is_key_window() const;
  void make_key_window();
  void make_key_and_visible();
  void become_key_window() {}
  void resign_key_window() {}
  void send_event(UIEvent event);
  CGPoint convert_point_to_window(CGPoint point, UIWindow window) const;
  CGPoint convert_point_from_window(CGPoint point, UIWindow window) const;
  BOOL should_create_context_as_secure() { return NO; }
  BOOL is_secure() const { return secure_.value_or(NO); }

 private:
  void show();
  void hide();
  void install_root_view();

  UIWindowLevel level_ = UIWindowLevelNormal;
  objc::Ref<UIViewController> root_controller_;
  // Asked once, when the window is first shown: a context cannot change its kind afterwards.
  std::optional<BOOL> secure_;
};

void export_window();

}  // namespace host::uikit
