#pragma once

#include "settings/pane/style_page.h"

namespace sonavue {

/// The rows of the style page, each in a group that explains it.
NSArray make_style_rows(styleController page);

}  // namespace sonavue
