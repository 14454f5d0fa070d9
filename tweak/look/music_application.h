#pragma once

#include "platform/SpringBoard/SBApplication.h"
#include "platform/SpringBoard/SBIconView.h"

namespace sonavue {

/// The Music application, or nil with the one line that this extension ever logs about a failure.
SBApplication find_music_application();

/// The home screen's present view of the Music icon.
SBIconView find_music_icon();

/// Does the view show the Music icon at present? The home screen uses its views again.
bool shows_music_icon(SBIconView icon);

/// Does the icon stand inside a folder? Its drag stays the folder's own there.
bool is_in_folder(SBIconView icon);

}  // namespace sonavue
