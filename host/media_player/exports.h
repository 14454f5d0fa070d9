#pragma once

namespace host::media_player {

/// Registers the classes of the MediaPlayer framework and sets its constants. Requires Foundation
/// and the drawing classes. Idempotent.
void export_media_player();

/// Registers the class of MediaPlayerUI.
void export_now_playing_controller();

/// Registers the home screen's interface to what is playing.
void export_media_controller();

}  // namespace host::media_player
