#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIControl.h"

namespace host::uikit {

enum class AlertButtonKind { Cancel, Other };

/// A button of an alert: a blue title on a ground that darkens while pressed.
class AlertButton : public objc::Implementation<AlertButton, UIControl> {
 public:
  explicit AlertButton(UIControl owner) : Implementation(owner) {}

  void fill(NSString title, AlertButtonKind kind);
  void set_highlighted(BOOL highlighted);
};

inline constexpr CGFloat kAlertButtonHeight = 44;

/// The view's tag is the button's index.
objc::Ref<UIControl> make_alert_button(NSString title, AlertButtonKind kind, NSInteger index,
                                       CGRect frame);

void export_alert_button();

}  // namespace host::uikit
