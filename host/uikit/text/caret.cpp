#include "host/uikit/text/caret.h"

namespace host::uikit {
namespace {

constexpr double kHalfBlink = 0.5;
constexpr CGFloat kCornerRadius = 1;

}  // namespace

void Caret::show(UIView parent, CGRect frame, UIColor color) {
  if (!view_) {
    view_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(frame));
    view_->setUserInteractionEnabled(NO);
    view_->layer().setCornerRadius(kCornerRadius);
  }
  view_->setFrame(frame);
  view_->setBackgroundColor(color);
  view_->setHidden(NO);
  if (view_->superview() != parent) parent.addSubview(view_.get());
  restart_blinking();
}

void Caret::restart_blinking() {
  RunLoop& loop = RunLoop::main();
  if (blink_) loop.remove_timer(blink_);
  blink_ = loop.add_timer(loop.now() + kHalfBlink, kHalfBlink,
                          [this] { view_->setHidden(!view_->isHidden()); });
}

void Caret::hide() {
  if (blink_ && RunLoop::has_main()) RunLoop::main().remove_timer(blink_);
  blink_ = 0;
  view_->removeFromSuperview();
  view_.reset();
}

}  // namespace host::uikit
