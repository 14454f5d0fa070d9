#pragma once

#include "host/media/play_queue.h"
#include "host/media/player.h"

namespace host::media_player {

/// What the user has chosen about how music is played. Kept in a file of the phone, which Settings
/// and the process that plays both read and write.
struct MusicChoices {
  media::ReplayGain replay_gain = media::ReplayGain::off;
  media::Repeat repeat = media::Repeat::none;
  bool shuffles = false;
  /// Whether the desktop shows a new song when the phone's window is not in front.
  bool announces_songs = false;
  friend bool operator==(const MusicChoices&, const MusicChoices&) = default;
};

/// What is missing in the file, or makes no sense there, is as on a new phone.
MusicChoices read_music_choices();
/// Keeps what else is in the file. Returns false when it cannot be written.
bool write_music_choices(const MusicChoices& choices);

}  // namespace host::media_player
