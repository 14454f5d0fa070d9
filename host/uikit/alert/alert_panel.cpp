#include <algorithm>
#include <cmath>

#include "host/runtime/on_pixel.h"
#include "host/uikit/alert/alert_button.h"
#include "host/uikit/alert/alert_view.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/_UIBackdropView.h"

namespace host::uikit {
namespace {

constexpr CGFloat kWidth = 270;
constexpr CGFloat kCorner = 7;
constexpr CGFloat kPanelMargin = 15;
constexpr CGFloat kTop = 20;
constexpr CGFloat kTextGap = 4;
constexpr CGFloat kBelowTexts = 20;
constexpr CGFloat kTitleSize = 17;
constexpr CGFloat kMessageSize = 13;
constexpr CGFloat kGloss = 0.5;
constexpr CGFloat kPanelLineAlpha = 0.2;
constexpr CGFloat kManyLines = 10000;
/// This many buttons are placed side by side.
constexpr NSInteger kSideBySide = 2;

/// Returns the bottom of the text.
CGFloat add_text(UIView panel, NSString text, UIFont font, CGFloat top) {
  if (text.length() == 0) return top;
  const CGFloat width = kWidth - 2 * kPanelMargin;
  const auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
  label->setFont(font);
  label->setNumberOfLines(0);
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setText(text);
  const CGFloat height = std::ceil(label->sizeThatFits({width, kManyLines}).height);
  label->setFrame({kPanelMargin, top, width, height});
  panel.addSubview(label.get());
  return top + height;
}

}  // namespace

void AlertView::build() {
  const auto old_parts = objc::Ref<NSArray>::retain(self.subviews());
  for (const UIView part : old_parts->of<UIView>())
    part.removeFromSuperview();
  self.setBounds({0, 0, kWidth, 0});
  self.setClipsToBounds(YES);
  self.layer().setCornerRadius(kCorner);
  const auto glass = objc::Ref<UIView>::adopt(_UIBackdropView::alloc().initWithFrame(
      {}, NO, _UIBackdropViewSettingsUltraLight::settingsForStyle(0)));
  self.addSubview(glass.get());
  // The dimmed screen behind would make the panel look dull; the gloss lightens it.
  const auto gloss = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
  gloss->setBackgroundColor(UIColor::colorWithWhite(1, kGloss));
  self.addSubview(gloss.get());
  const CGFloat height = add_buttons(add_texts());
  self.setBounds({0, 0, kWidth, height});
  glass->setFrame(self.bounds());
  gloss->setFrame(self.bounds());
}

CGFloat AlertView::add_texts() {
  CGFloat bottom = add_text(self, title_.get(),
                            UIFont::fontWithName("HelveticaNeue-Medium"_ns, kTitleSize), kTop);
  if (title_ && title_->length() > 0) bottom += kTextGap;
  bottom = add_text(self, message_.get(), UIFont::systemFontOfSize(kMessageSize), bottom);
  return bottom + kBelowTexts;
}

void AlertView::add_line(CGRect frame) {
  const auto line = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(frame));
  line->setUserInteractionEnabled(NO);
  line->setBackgroundColor(UIColor::colorWithWhite(0, kPanelLineAlpha));
  self.addSubview(line.get());
}

void AlertView::add_button_at(NSInteger index, CGRect frame) {
  const auto kind = index == cancel_index_ ? AlertButtonKind::Cancel : AlertButtonKind::Other;
  const auto button = make_alert_button(self.buttonTitleAtIndex(index), kind, index, frame);
  button->addTarget(self, "_pressed:"_sel, UIControlEventTouchUpInside);
  self.addSubview(button.get());
}

/// Places two buttons side by side; otherwise stacks them, with the cancel button last. Returns
/// their bottom.
CGFloat AlertView::add_buttons(CGFloat top) {
  const NSInteger count = number_of_buttons();
  if (count == kSideBySide) {
    const CGFloat half = kWidth / 2;
    add_button_at(0, {0, top, half, kAlertButtonHeight});
    add_button_at(1, {half, top, half, kAlertButtonHeight});
    add_line({0, top, kWidth, hairline()});
    add_line({half, top, hairline(), kAlertButtonHeight});
    return top + kAlertButtonHeight;
  }
  std::vector<NSInteger> order;
  for (NSInteger index = 0; index < count; ++index)
    if (index != cancel_index_) order.push_back(index);
  if (cancel_index_ >= 0) order.push_back(cancel_index_);
  for (const NSInteger index : order) {
    add_button_at(index, {0, top, kWidth, kAlertButtonHeight});
    add_line({0, top, kWidth, hairline()});
    top += kAlertButtonHeight;
  }
  return top;
}

}  // namespace host::uikit
