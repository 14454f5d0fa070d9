#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Small capitals over a group of rows, near to it; words on as many lines as they take below it.
enum class GroupEnd { Header, Footer };

/// The grey that groups of rows lie on.
UIColor group_ground_color();

/// With a nil text, what keeps two groups apart. The first group stands a little lower.
double group_title_height(NSString text, GroupEnd end, bool is_first, double width);
objc::Ref<UIView> make_group_title(NSString text, GroupEnd end, CGSize size);

}  // namespace host::uikit
