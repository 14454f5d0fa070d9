#pragma once

namespace host::media {

// Keeps the libraries that the playback engine tries in turn from printing what they miss, at every
// song: the engine's answer says whether there is a device. Names the icon that the desktop's mixer
// shows. Call before the engine is made.
void prepare_sound_libraries();

}  // namespace host::media
