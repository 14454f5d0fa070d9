#pragma once

#include <optional>

#include "host/runtime/countdown.h"
#include "host/springboard/view/icon_label.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBIconViewDelegate.h"
#include "platform/UIKit/UIEvent.h"
#include "platform/UIKit/UIImageView.h"

namespace host::springboard {

/// An icon on the screen. Taps, long presses and drags in editing mode all come from the view's own
/// touch handling, without recognisers, and are reported to its delegate. An added recogniser that
/// cancels the touches when it begins therefore suppresses all of them.
class IconView : public objc::Implementation<IconView, SBIconView> {
 public:
  using Implementation::Implementation;

  /// Returns a new view for the icon, in the icon size of this screen; the caller owns it (+1).
  static SBIconView make(SBIcon icon);

  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate);
  SBIcon icon() const { return icon_.get(); }
  void set_icon(SBIcon icon);
  int location() const { return location_; }
  void set_location(int location) { location_ = location; }
  BOOL is_in_dock() const { return location_ == SBIconLocationDock; }
  BOOL is_editing() const { return editing_; }
  void set_is_editing(BOOL editing);
  BOOL is_highlighted() const { return highlighted_; }
  void set_highlighted(BOOL highlighted);

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
  void did_move_to_window();

  /// The frame of the image, in the icon view's coordinates.
  CGRect image_frame() const;
  /// A lifted icon is invisible: its image is under the finger.
  void set_lifted(bool lifted);
  void set_image_scale(CGFloat scale);
  /// The finger's position, in the window's coordinates.
  CGPoint touch_point() const { return touch_point_; }

 private:
  void build();
  void held();
  bool is_tapped_by(UITouch touch) const;
  void let_go(BOOL lifted);
  void start_wobbling() const;

  SBIconViewDelegate delegate_;
  objc::Ref<SBIcon> icon_;
  objc::Ref<UIView> content_;
  objc::Ref<UIImageView> image_;
  objc::Ref<UIImageView> shade_;
  std::optional<IconLabel> label_;
  CGPoint landing_point_;
  CGPoint touch_point_;
  Countdown hold_;
  bool is_held_ = false;
  bool has_strayed_ = false;
  int location_ = SBIconLocationHomeScreen;
  BOOL editing_ = NO;
  BOOL highlighted_ = NO;
};

void export_icon_view();

}  // namespace host::springboard
