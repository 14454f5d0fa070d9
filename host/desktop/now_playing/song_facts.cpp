#include "host/desktop/now_playing/song_facts.h"

#include "host/basics/percent.h"
#include "host/desktop/bus/bus_text.h"

namespace host::desktop {

SongFacts facts_of(const media::Track& track) {
  SongFacts facts;
  facts.id = track.id;
  facts.title = bus_text(track.title);
  facts.artist = bus_text(track.artist);
  facts.album_artist = bus_text(track.album_artist);
  facts.album = bus_text(track.album);
  facts.genre = bus_text(track.genre);
  facts.composer = bus_text(track.composer);
  facts.address = file_address(track.path);
  facts.microseconds = in_microseconds(track.duration_seconds);
  facts.track_number = track.track_number;
  facts.disc_number = track.disc_number;
  return facts;
}

}  // namespace host::desktop
