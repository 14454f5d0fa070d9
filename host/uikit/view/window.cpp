#include "host/uikit/view/window.h"

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/geometry/window_list.h"
#include "host/uikit/gesture/gesture_arena.h"
#include "host/uikit/touch/event.h"
#include "host/uikit/view/view_controller.h"
#include "platform/UIKit/UIApplication.h"

namespace host::uikit {

Window::~Window() {
  remove_from_list(self);
}

UIWindow Window::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  objc::state_of<View>(self).window_ = self;
  self.layer().setHidden(YES);
  return self;
}

UIResponder Window::next_responder() {
  return UIApplication::sharedApplication();
}

void Window::set_hidden(BOOL hidden) {
  if (self.isHidden() == hidden) return;
  if (hidden) {
    hide();
  } else {
    show();
  }
}

void Window::show() {
  if (!secure_) secure_ = self._shouldCreateContextAsSecure();
  show_in_list(self);
  root_controller_->viewWillAppear(NO);
  install_root_view();
  super<>("setHidden:"_sel, NO);
  root_controller_->viewDidAppear(NO);
}

void Window::hide() {
  root_controller_->viewWillDisappear(NO);
  super<>("setHidden:"_sel, YES);
  remove_from_list(self);
  root_controller_->viewDidDisappear(NO);
}

UIScreen Window::screen() const {
  return UIScreen::mainScreen();
}

void Window::set_root_view_controller(UIViewController controller) {
  if (root_controller_.get() == controller) return;
  const bool visible = !self.isHidden();
  if (root_controller_) objc::state_of<ViewController>(root_controller_.get()).end_presentation();
  if (root_controller_ && root_controller_->isViewLoaded())
    root_controller_->view().removeFromSuperview();
  root_controller_.reset(controller);
  if (!visible) return;
  controller.viewWillAppear(NO);
  install_root_view();
  controller.viewDidAppear(NO);
}

void Window::install_root_view() {
  const UIView view = root_controller_->view();
  if (!view || view.superview() == self) return;
  view.setFrame(self.bounds());
  view.setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  // Below the existing contents of the window.
  self.insertSubview(view, 0);
}

BOOL Window::is_key_window() const {
  return key_window() == self;
}

void Window::make_key_window() {
  set_key_window(self);
}

void Window::make_key_and_visible() {
  if (!self.isHidden()) show_in_list(self);
  self.setHidden(NO);
  self.makeKeyWindow();
}

void Window::send_event(UIEvent event) {
  const UITouch touch = objc::state_of<Event>(event).changed_touch();
  if (touch && touch.window() == self) GestureArena::shared().dispatch(touch, event);
}

CGPoint Window::convert_point_to_window(CGPoint point, UIWindow window) const {
  const CGPoint on_screen = to_screen(self, point);
  return window ? from_screen(window, on_screen) : on_screen;
}

CGPoint Window::convert_point_from_window(CGPoint point, UIWindow window) const {
  return from_screen(self, window ? to_screen(window, point) : point);
}

void export_window() {
  objc::ClassBuilder("UIWindow", "UIView")
      .state<Window>()
      .method<&Window::init_with_frame>("initWithFrame:")
      .method<&Window::next_responder>("nextResponder")
      .method<&Window::set_hidden>("setHidden:")
      .method<&Window::window_level>("windowLevel")
      .method<&Window::set_window_level>("setWindowLevel:")
      .method<&Window::screen>("screen")
      .method<&Window::root_view_controller>("rootViewController")
      .method<&Window::set_root_view_controller>("setRootViewController:")
      .method<&Window::is_key_window>("isKeyWindow")
      .method<&Window::make_key_window>("makeKeyWindow")
      .method<&Window::make_key_and_visible>("makeKeyAndVisible")
      .method<&Window::become_key_window>("becomeKeyWindow")
      .method<&Window::resign_key_window>("resignKeyWindow")
      .method<&Window::send_event>("sendEvent:")
      .method<&Window::convert_point_to_window>("convertPoint:toWindow:")
      .method<&Window::convert_point_from_window>("convertPoint:fromWindow:")
      .method<&Window::should_create_context_as_secure>("_shouldCreateContextAsSecure")
      .method<&Window::is_secure>("_isSecure")
      .finish();
}

}  // namespace host::uikit
