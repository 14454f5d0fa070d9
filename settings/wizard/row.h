#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

namespace sonavue {

enum class RowBorder { kNone, kHairline };

/// Gives a view the look of a wizard row, at its current size: white, with `name` as its title and
/// as its layer's name, and with `image` before the title unless it is nil.
void dress_as_row(UIView view, NSString name, UIImage image, RowBorder border);

/// Adds the hairline border of rows and of the controls in them.
void add_hairline(UIView view);

}  // namespace sonavue
