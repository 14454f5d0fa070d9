#include "host/uikit/alert/alert_view.h"

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <memory>

#include "host/uikit/alert/alert_button.h"
#include "host/uikit/touch/touch_input.h"
#include "host/uikit/view/touch_hold.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::uikit {
namespace {

constexpr CGFloat kDimAlpha = 0.4;
constexpr CGFloat kFirstScale = 1.18;
constexpr double kComing = 0.4;
constexpr CGFloat kComingDamping = 0.9;
constexpr double kGoing = 0.25;

/// The alerts that are up, the newest last.
std::vector<UIAlertView>& shown_alerts() {
  static std::vector<UIAlertView> alerts;
  return alerts;
}

/// The method is variadic: only the first of the other titles is named, and nil ends the list.
objc::Id init_with_titles(objc::Id self, objc::Sel, objc::Id title, objc::Id message,
                          objc::Id delegate, objc::Id cancel, objc::Id first_other, ...) {
  AlertView& state = objc::state_of<AlertView>(objc::Object(self));
  const auto text = [](objc::Id id) { return objc::cast<NSString>(objc::Object(id)); };
  const UIAlertView alert =
      state.init_with_title(text(title), text(message), objc::Object(delegate), text(cancel));
  va_list others;
  va_start(others, first_other);
  for (objc::Id other = first_other; other; other = va_arg(others, objc::Id))
    alert.addButtonWithTitle(text(other));
  va_end(others);
  return alert.id();
}

}  // namespace

AlertView::~AlertView() {
  std::erase(shown_alerts(), self);
}

UIAlertView AlertView::init_with_title(NSString title, NSString message, objc::Object delegate,
                                       NSString cancel) {
  if (!self.UIView::initWithFrame({})) return nil;
  self.setTitle(title);
  self.setMessage(message);
  delegate_ = delegate;
  if (cancel) cancel_index_ = self.addButtonWithTitle(cancel);
  return self;
}

NSInteger AlertView::add_button(NSString title) {
  titles_.push_back(objc::Ref<NSString>::adopt(title.copy()));
  return number_of_buttons() - 1;
}

NSString AlertView::button_title(NSInteger index) const {
  if (index < 0 || index >= number_of_buttons()) return nil;
  return titles_[static_cast<std::size_t>(index)].get();
}

UIAlertViewDelegate AlertView::listener(objc::Sel selector) const {
  const auto delegate = objc::cast<UIAlertViewDelegate>(delegate_);
  return delegate && delegate.respondsToSelector(selector) ? delegate : UIAlertViewDelegate();
}

void AlertView::show() {
  if (window_) return;
  cancel_every_touch();
  const CGRect screen = UIScreen::mainScreen().bounds();
  window_ = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame(screen));
  window_->setWindowLevel(UIWindowLevelAlert);
  dim_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(screen));
  dim_->setBackgroundColor(UIColor::colorWithWhite(0, kDimAlpha));
  window_->addSubview(dim_.get());
  build();
  self.setCenter(screen.centre());
  // The window retains the alert while it is up.
  window_->addSubview(self);
  if (!shown_alerts().empty()) shown_alerts().back().window().setHidden(YES);
  shown_alerts().push_back(self);
  window_->setHidden(NO);
  appear();
}

void AlertView::appear() {
  UIView::performWithoutAnimation(objc::block([this] {
    dim_->setAlpha(0);
    self.setAlpha(0);
    self.setTransform(CGAffineTransformMakeScale(kFirstScale, kFirstScale));
  }));
  const auto hold = std::make_shared<TouchHold>(window_.get());
  UIView::animateWithDuration(kComing, 0, kComingDamping, 0, UIViewAnimationOptions{},
                              objc::block([this] {
                                dim_->setAlpha(1);
                                self.setAlpha(1);
                                self.setTransform(CGAffineTransformIdentity);
                              }),
                              objc::block([hold](BOOL) { hold->end(); }));
}

void AlertView::pressed(UIControl button) {
  if (leaving_) return;
  const auto kept = objc::Ref<UIAlertView>::retain(self);
  const NSInteger index = button.tag();
  listener("alertView:clickedButtonAtIndex:"_sel).clickedButtonAtIndex(self, index);
  self.dismissWithClickedButtonIndex(index, YES);
}

void AlertView::dismiss(NSInteger index, BOOL animated) {
  if (!window_ || leaving_) return;
  leaving_ = true;
  const auto kept = objc::Ref<UIAlertView>::retain(self);
  std::erase(shown_alerts(), self);
  const auto hold = std::make_shared<TouchHold>(window_.get());
  const auto gone = [this, kept, index, hold](BOOL) {
    hold->end();
    const auto window = std::exchange(window_, {});
    window->setHidden(YES);
    self.removeFromSuperview();
    leaving_ = false;
    if (!shown_alerts().empty()) shown_alerts().back().window().setHidden(NO);
    listener("alertView:didDismissWithButtonIndex:"_sel).didDismissWithButtonIndex(self, index);
  };
  if (!animated) return gone(YES);
  UIView::animateWithDuration(kGoing, objc::block([this] {
                                dim_->setAlpha(0);
                                self.setAlpha(0);
                              }),
                              objc::block(gone));
}

void export_alert_view() {
  objc::ClassBuilder("UIAlertView", "UIView")
      .state<AlertView>()
      .method<&AlertView::add_button>("addButtonWithTitle:")
      .method<&AlertView::title>("title")
      .method<&AlertView::set_title>("setTitle:")
      .method<&AlertView::message>("message")
      .method<&AlertView::set_message>("setMessage:")
      .method<&AlertView::delegate>("delegate")
      .method<&AlertView::set_delegate>("setDelegate:")
      .method<&AlertView::number_of_buttons>("numberOfButtons")
      .method<&AlertView::button_title>("buttonTitleAtIndex:")
      .method<&AlertView::cancel_button_index>("cancelButtonIndex")
      .method<&AlertView::is_visible>("isVisible")
      .method<&AlertView::show>("show")
      .method<&AlertView::dismiss>("dismissWithClickedButtonIndex:animated:")
      .method<&AlertView::pressed>("_pressed:")
      .finish();
  using Encoding =
      objc::MethodEncoding<UIAlertView, NSString, NSString, objc::Object, NSString, NSString>;
  class_addMethod(UIAlertView::cls(),
                  "initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:"_sel,
                  reinterpret_cast<objc::Imp>(&init_with_titles), Encoding::text.c_str());
}

}  // namespace host::uikit
