#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/_UIBackdropView.h"

namespace host::springboard {

// The building blocks of all surfaces. Each function adds its view to `parent`.

inline constexpr _UIBackdropViewStyle kPaperBackdrop = 2010;
inline constexpr _UIBackdropViewStyle kDarkBackdrop = 2030;
inline constexpr _UIBackdropViewStyle kInkBackdrop = 2050;
inline constexpr _UIBackdropViewStyle kMilkBackdrop = 2070;

/// Blurs everything behind the frame and lets touches through.
objc::Ref<UIView> add_backdrop(UIView parent, CGRect frame, _UIBackdropViewStyle style);
objc::Ref<UIView> add_plate(UIView parent, CGRect frame, UIColor color, CGFloat radius = 0);
/// Adds the home screen's wallpaper, as large as the parent.
objc::Ref<UIImageView> add_wallpaper(UIView parent);
/// The same, dark and blurred: the background behind the screens. It receives touches.
void add_blurred_wallpaper(UIView parent);
/// Adds the short bar that shows where a surface can be grabbed.
void add_grabber(UIView parent, CGPoint centre, UIColor color);

struct TextLook {
  NSString font;
  CGFloat size;
  UIColor color;
  NSTextAlignment alignment = NSTextAlignmentCenter;
};
objc::Ref<UILabel> add_label(UIView parent, CGRect frame, const TextLook& look);

/// Adds one of the home screen's glyphs in one colour, in the middle of `frame`.
objc::Ref<UIImageView> add_glyph(UIView parent, NSString name, CGRect frame, UIColor color);
UIImage glyph(NSString name);
/// Adds a button that shows only a glyph.
objc::Ref<UIButton> add_glyph_button(UIView parent, NSString name, CGRect frame, UIColor color);

/// Sets the text only when it differs, to avoid painting it again.
void show_text(UILabel label, NSString text);

}  // namespace host::springboard
