#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"

// Small views and helpers that several parts of the panel share.

namespace sonavue {

/// A white line, as used along the edges of lists.
[[nodiscard]] objc::Ref<UIView> make_line(CGRect frame);

/// Adds such a line to the pages and returns it.
UIView add_line_to_pages(CGRect frame);

/// A label with one centred line in the tiles' font.
[[nodiscard]] objc::Ref<UILabel> make_tile_title(CGRect frame, NSString text);
NSString tile_font();

/// Sets the placeholder of the search field, in this colour.
void set_placeholder(UIColor colour);

}  // namespace sonavue
