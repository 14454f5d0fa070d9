#include "host/uikit/alert/alert_button.h"

#include "platform/UIKit/UILabel.h"

namespace host::uikit {
namespace {

constexpr char kAlertButtonClassName[] = "UIAlertViewButton";
constexpr CGFloat kAlertButtonFontSize = 17;
constexpr CGFloat kAlertButtonMargin = 8;
constexpr CGFloat kPressedGroundAlpha = 0.1;

}  // namespace

void AlertButton::fill(NSString title, AlertButtonKind kind) {
  const CGSize size = self.bounds().size;
  const auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame(
      {kAlertButtonMargin, 0, size.width - 2 * kAlertButtonMargin, size.height}));
  label->setFont(kind == AlertButtonKind::Cancel
                     ? UIFont::fontWithName("HelveticaNeue-Medium"_ns, kAlertButtonFontSize)
                     : UIFont::systemFontOfSize(kAlertButtonFontSize));
  label->setTextColor(self.tintColor());
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setText(title);
  self.addSubview(label.get());
}

void AlertButton::set_highlighted(BOOL highlighted) {
  super<>("setHighlighted:"_sel, highlighted);
  self.setBackgroundColor(UIColor::colorWithWhite(0, highlighted ? kPressedGroundAlpha : 0));
}

objc::Ref<UIControl> make_alert_button(NSString title, AlertButtonKind kind, NSInteger index,
                                       CGRect frame) {
  const auto made =
      objc::send<UIView>(objc::Object(objc_getClass(kAlertButtonClassName)), "alloc"_sel);
  const auto button = objc::cast<UIControl>(made.initWithFrame(frame));
  button.setTag(index);
  objc::state_of<AlertButton>(button).fill(title, kind);
  return objc::Ref<UIControl>::adopt(button);
}

void export_alert_button() {
  objc::ClassBuilder(kAlertButtonClassName, "UIControl")
      .state<AlertButton>()
      .method<&AlertButton::set_highlighted>("setHighlighted:")
      .finish();
}

}  // namespace host::uikit
