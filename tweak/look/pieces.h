#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"

// Small pieces that several parts of the panel are made of.

namespace sonavue {

/// A white line, as it edges a list.
[[nodiscard]] objc::Ref<UIView> make_line(CGRect frame);

/// A line on the pages.
UIView add_line_to_pages(CGRect frame);

/// A label of one centred line in the font of the tiles.
[[nodiscard]] objc::Ref<UILabel> make_tile_title(CGRect frame, NSString text);
NSString tile_font();

/// Lets a tap on the view send `action` to `target`.
void add_tap(UIView view, objc::Object target, objc::Sel action);

/// The word in the empty search field.
void set_placeholder(UIColor colour);

}  // namespace sonavue
