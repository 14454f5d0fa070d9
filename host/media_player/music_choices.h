#pragma once

#include "host/media/player.h"

namespace host::media_player {

/// What the user has chosen in Settings about how music is played. Kept in a file of the phone,
/// which Settings writes and the process that plays reads.
struct MusicChoices {
  media::ReplayGain replay_gain = media::ReplayGain::off;
  /// Whether the desktop shows a new song when the phone's window is not in front.
  bool announces_songs = false;
  friend bool operator==(const MusicChoices&, const MusicChoices&) = default;
};

/// What is missing in the file, or makes no sense there, is as on a new phone.
MusicChoices read_music_choices();
/// Keeps what else is in the file. Returns false when it cannot be written.
bool write_music_choices(const MusicChoices& choices);

}  // namespace host::media_player
