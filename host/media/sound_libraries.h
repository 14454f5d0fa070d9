#pragma once

namespace host::media {

// Keeps the libraries that the playback engine tries in turn from printing what they miss, at every
// song. The engine's answer says whether there is a device. Call before the engine is made.
void quiet_sound_libraries();

}  // namespace host::media
