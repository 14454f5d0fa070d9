#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIControl.h"

namespace host::uikit {

/// Where the title behind the chevron begins.
inline constexpr CGFloat kBackTitleLeft = 27;

/// A chevron and the title of the page that it leads back to. Both fade under a finger.
class BackButton : public objc::Implementation<BackButton, UIControl> {
 public:
  explicit BackButton(UIControl owner) : Implementation(owner) {}

  void fill(NSString title, UIColor tint, CGFloat height, CGFloat room);
  void set_highlighted(BOOL highlighted);
  /// The title moves against the chevron as its page comes (1) or goes (-1).
  void place(CGFloat position) const;

 private:
  objc::Ref<UIView> chevron_;
  objc::Ref<UIView> title_;
};

/// Where the title does not fit into `room` it says that it leads back, and nothing more.
objc::Ref<UIControl> make_back_button(NSString title, UIColor tint, CGFloat height, CGFloat room);

void export_back_button();

}  // namespace host::uikit
