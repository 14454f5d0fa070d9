#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Returns the grey bar with a bold title for a section's header or footer in a plain table.
objc::Ref<UIView> make_section_title(NSString title);

}  // namespace host::uikit
