#pragma once

#include "platform/SpringBoard/SBApplication.h"
#include "platform/SpringBoard/SBIconView.h"

namespace sonavue {

/// The Music application. Returns nil if it is missing, and then logs the only line that the
/// extension ever logs.
SBApplication find_music_application();

/// The home screen's current view of the Music icon.
SBIconView find_music_icon();

/// Whether the view currently shows the Music icon. The home screen reuses its views.
bool shows_music_icon(SBIconView icon);

/// Whether the icon is inside a folder, where the folder keeps the drag.
bool is_in_folder(SBIconView icon);

}  // namespace sonavue
