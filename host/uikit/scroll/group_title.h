#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// A header shows small capitals close above its rows; a footer shows sentences below them, on as
/// many lines as they need.
enum class GroupEnd { Header, Footer };

/// Returns the grey behind groups of rows.
UIColor group_ground_color();

/// Returns the height of a header or footer; for a nil text, the gap between two groups. The first
/// group starts a little lower.
double group_title_height(NSString text, GroupEnd end, bool is_first, double width);
objc::Ref<UIView> make_group_title(NSString text, GroupEnd end, CGSize size);

}  // namespace host::uikit
