#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/_UIBackdropView.h"

namespace host::springboard {

// The pieces that all surfaces are put together from. Each is added to `parent`.

inline constexpr _UIBackdropViewStyle kPaperBackdrop = 2010;
inline constexpr _UIBackdropViewStyle kDarkBackdrop = 2030;
inline constexpr _UIBackdropViewStyle kInkBackdrop = 2050;
inline constexpr _UIBackdropViewStyle kMilkBackdrop = 2070;

/// Blurs what lies behind the frame, and lets touches through.
objc::Ref<UIView> add_backdrop(UIView parent, CGRect frame, _UIBackdropViewStyle style);
objc::Ref<UIView> add_plate(UIView parent, CGRect frame, UIColor color, CGFloat radius = 0);
/// The home screen's wallpaper, over all of the parent.
objc::Ref<UIImageView> add_wallpaper(UIView parent);
/// The same, dark and blurred: what lies behind the screens. It takes the touches on it.
void add_blurred_wallpaper(UIView parent);
/// The short bar that says where a surface can be held.
void add_grabber(UIView parent, CGPoint centre, UIColor color);

struct TextLook {
  NSString font;
  CGFloat size;
  UIColor color;
  NSTextAlignment alignment = NSTextAlignmentCenter;
};
objc::Ref<UILabel> add_label(UIView parent, CGRect frame, const TextLook& look);

/// A glyph of the home screen's pictures in one colour, in the middle of `frame`.
objc::Ref<UIImageView> add_glyph(UIView parent, NSString name, CGRect frame, UIColor color);
UIImage glyph(NSString name);
/// A button of which only a glyph can be seen.
objc::Ref<UIButton> add_glyph_button(UIView parent, NSString name, CGRect frame, UIColor color);

/// Sets the text only when it is another, so that nothing is painted again.
void show_text(UILabel label, NSString text);

}  // namespace host::springboard
