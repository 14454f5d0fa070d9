#pragma once

#include "platform/UIKit/UIImage.h"

namespace host::settings {

enum class RowIcon { Sounds, Music, Wallpaper, Gestures, About };

/// A white symbol on a rounded square, in the size of a row's icon.
UIImage row_icon(RowIcon icon);

}  // namespace host::settings
