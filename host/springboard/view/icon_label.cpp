#include "host/springboard/view/icon_label.h"

#include "host/springboard/common/make_view.h"

namespace host::springboard {
namespace {

constexpr CGFloat kLabelFontSize = 12;
constexpr CGFloat kFarShadowDrop = 1;
constexpr CGFloat kNearShadowDrop = 0.5;
constexpr CGFloat kFarShadowAlpha = 0.14;
constexpr CGFloat kNearShadowAlpha = 0.2;

objc::Ref<UILabel> make_line(UIView parent, CGRect frame, CGFloat drop, UIColor color) {
  frame.origin.y += drop;
  auto label = make_view<UILabel>(frame);
  label->setFont(UIFont::fontWithName("HelveticaNeue"_ns, kLabelFontSize));
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setTextColor(color);
  label->setBackgroundColor(UIColor::clearColor());
  label->setUserInteractionEnabled(NO);
  parent.addSubview(*label);
  return label;
}

}  // namespace

IconLabel::IconLabel(UIView parent, CGRect frame)
    : far_shadow_(
          make_line(parent, frame, kFarShadowDrop, UIColor::colorWithWhite(0, kFarShadowAlpha))),
      near_shadow_(
          make_line(parent, frame, kNearShadowDrop, UIColor::colorWithWhite(0, kNearShadowAlpha))),
      text_(make_line(parent, frame, 0, UIColor::whiteColor())) {}

void IconLabel::set_text(NSString text) const {
  for (const auto& label : {far_shadow_, near_shadow_, text_})
    label->setText(text);
}

}  // namespace host::springboard
