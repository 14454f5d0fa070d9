#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

namespace sonavue {

enum class RowBorder { kNone, kHairline };

/// Dresses a view as a row of the wizard, at its present size: white, with the name of its layer as
/// its title and a picture before that where there is one.
void dress_as_row(UIView view, NSString name, UIImage image, RowBorder border);

/// The hairline of rows and of what lies in them.
void add_hairline(UIView view);

}  // namespace sonavue
