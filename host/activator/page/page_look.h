#pragma once

#include <string>

#include "objc/ref.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UITableView.h"

namespace host::activator {

inline constexpr CGFloat kMargin = 15;
/// The side of an icon in a row.
inline constexpr CGFloat kIconSide = 29;
/// Higher than any text of a page.
inline constexpr CGFloat kManyLines = 10000;

/// The grey background behind the rows, and the greys of the texts on it.
UIColor ground_color();
UIColor caption_color();

/// A table in the style of the settings that fills `bounds` and resizes with its superview.
objc::Ref<UITableView> make_table(CGRect bounds, objc::Object source);

/// A section's caption, `height` points high: small capitals near the rows.
UIView make_caption(NSString text, CGFloat width, CGFloat height);
/// A note under the rows, as wide as they are.
UIView make_note(NSString text, CGFloat width);
CGFloat note_height(NSString text, CGFloat width);

/// The file's picture in the size of a row's icon, or a neutral one if it cannot be read.
UIImage row_icon(const std::string& file);

}  // namespace host::activator
