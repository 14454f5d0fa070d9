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

/// The grey behind the rows, and the greys of the texts on it.
UIColor ground_color();
UIColor caption_color();

/// A table of the settings' look that fills `bounds` and follows them.
objc::Ref<UITableView> make_table(CGRect bounds, objc::Object source);

/// What stands over a section: small capitals near the rows, on `height` points.
UIView make_caption(NSString text, CGFloat width, CGFloat height);
/// A few words under the rows, at their width.
UIView make_note(NSString text, CGFloat width);
CGFloat note_height(NSString text, CGFloat width);

/// The picture of the file in the size of a row's icon, or a neutral one when there is none.
UIImage row_icon(const std::string& file);

}  // namespace host::activator
