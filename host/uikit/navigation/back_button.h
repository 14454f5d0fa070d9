#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIControl.h"

namespace host::uikit {

/// The left edge of the title beside the chevron.
inline constexpr CGFloat kBackTitleLeft = 27;

/// A chevron and the title of the previous page. Both fade while pressed.
class BackButton : public objc::Implementation<BackButton, UIControl> {
 public:
  explicit BackButton(UIControl owner) : Implementation(owner) {}

  void fill(NSString title, UIColor tint, CGFloat height, CGFloat room);
  void set_highlighted(BOOL highlighted);
  /// Offsets the title from the chevron while its page comes (1) or goes (-1).
  void place(CGFloat position) const;

 private:
  objc::Ref<UIView> chevron_;
  objc::Ref<UIView> title_;
};

/// A title that does not fit into `room` is replaced by "Back".
objc::Ref<UIControl> make_back_button(NSString title, UIColor tint, CGFloat height, CGFloat room);

void export_back_button();

}  // namespace host::uikit
