#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// The grey bar with a bold title that stands over or under a section of a plain table.
objc::Ref<UIView> make_section_title(NSString title);

}  // namespace host::uikit
