#include "host/uikit/navigation/bar_contents.h"

#include <algorithm>
#include <cmath>

#include "host/uikit/navigation/back_button.h"
#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UILabel.h"

namespace host::uikit {
namespace {

constexpr CGFloat kBarFontSize = 17;
constexpr CGFloat kBarMargin = 15;
constexpr CGFloat kButtonMargin = 8;
constexpr CGFloat kGap = 6;
/// The minimum width of the title; the back button is shortened first.
constexpr CGFloat kLeastTitle = 100;
constexpr CGFloat kManyPoints = 10000;

objc::Ref<UILabel> make_title(NSString text, CGSize room) {
  const auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
  label->setFont(UIFont::fontWithName("HelveticaNeue-Medium"_ns, kBarFontSize));
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setText(text);
  const CGFloat width = std::ceil(label->sizeThatFits({kManyPoints, room.height}).width);
  label->setFrame({0, 0, std::min(width, room.width), room.height});
  return label;
}

void shift(UIView view, CGFloat distance) {
  view.setTransform(CGAffineTransformMakeTranslation(distance, 0));
}

}  // namespace

BarContents::BarContents(UIView bar, UINavigationItem item, const Way& way)
    : item_(objc::Ref<UINavigationItem>::retain(item)),
      view_(objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(bar.bounds()))) {
  bar.addSubview(view_.get());
  if (const UIBarButtonItem left = item.leftBarButtonItem()) {
    left_.reset(add_button(left, true));
  } else if (way.back_title && !item.hidesBackButton()) {
    add_back(way);
  }
  if (const UIBarButtonItem right = item.rightBarButtonItem())
    right_.reset(add_button(right, false));
  add_title();
}

BarContents::~BarContents() {
  view_->removeFromSuperview();
}

UIButton BarContents::add_button(UIBarButtonItem item, bool at_left) {
  const CGSize bar = view_->bounds().size;
  const UIButton button = UIButton::buttonWithType(UIButtonTypeSystem);
  view_->addSubview(button);
  if (item.tintColor()) button.setTintColor(item.tintColor());
  const UIFont font = item.style() == UIBarButtonItemStyleDone
                          ? UIFont::fontWithName("HelveticaNeue-Medium"_ns, kBarFontSize)
                          : UIFont::systemFontOfSize(kBarFontSize);
  button.titleLabel().setFont(font);
  button.setTitle(item.title(), UIControlStateNormal);
  button.setImage(item.image(), UIControlStateNormal);
  button.setEnabled(item.isEnabled());
  button.addTarget(item, "_press"_sel, UIControlEventTouchUpInside);
  const CGFloat width = std::ceil(button.sizeThatFits(bar).width) + 2 * kButtonMargin;
  button.setFrame(
      {at_left ? kBarMargin - kButtonMargin : bar.width - width - kBarMargin + kButtonMargin, 0,
       width, bar.height});
  return button;
}

void BarContents::add_back(const Way& way) {
  const CGFloat room = (view_->bounds().size.width - kLeastTitle) / 2;
  back_ = make_back_button(way.back_title, view_->tintColor(), view_->bounds().size.height, room);
  back_->addTarget(way.target, way.back_action, UIControlEventTouchUpInside);
  view_->addSubview(back_.get());
}

// In the middle of the bar, or as near to it as the buttons allow.
void BarContents::add_title() {
  const CGSize bar = view_->bounds().size;
  CGFloat left = kBarMargin;
  if (left_) left = CGRect(left_->frame()).max_x();
  if (back_) left = CGRect(back_->frame()).max_x();
  const CGFloat right = right_ ? CGRect(right_->frame()).min_x() : bar.width - kBarMargin;
  const CGFloat room = std::max(right - left - 2 * kGap, 0.0);
  if (const UIView own = item_->titleView()) {
    title_ = objc::Ref<UIView>::retain(own);
  } else {
    title_.reset(make_title(item_->title(), {room, bar.height}).get());
  }
  const CGFloat half = title_->bounds().size.width / 2;
  const bool fits_left = left + kGap + half <= bar.width / 2;
  const bool fits_right = right - kGap - half >= bar.width / 2;
  CGFloat middle = bar.width / 2;
  if (!fits_left) middle = left + kGap + half;
  if (!fits_right) middle = right - kGap - half;
  title_->setCenter({middle, bar.height / 2});
  view_->addSubview(title_.get());
}

void BarContents::place(CGFloat position) const {
  const CGFloat width = view_->bounds().size.width;
  const CGFloat shown = std::max(1 - std::abs(position), 0.0);
  // A leaving title moves to the place of the back button; an arriving one comes from the other
  // side.
  const CGFloat to_back =
      CGPoint(title_->center()).x - kBackTitleLeft - title_->bounds().size.width / 2;
  shift(title_.get(), position * (position > 0 ? width / 2 : to_back));
  title_->setAlpha(shown);
  if (back_) objc::state_of<BackButton>(back_.get()).place(position);
  if (back_) back_->setAlpha(shown);
  if (left_) left_->setAlpha(shown);
  if (right_) right_->setAlpha(shown);
}

}  // namespace host::uikit
