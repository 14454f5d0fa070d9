#pragma once

namespace host::media_player {

/// Makes the classes of the MediaPlayer framework and gives their constants values. Foundation and
/// the drawing classes come first. Asking again does nothing.
void export_media_player();

/// The class of MediaPlayerUI.
void export_now_playing_controller();

/// The home screen's own view of what plays.
void export_media_controller();

}  // namespace host::media_player
