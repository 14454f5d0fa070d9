#pragma once

#include <systemd/sd-bus.h>

#include <optional>
#include <string>

#include "host/desktop/now_playing/song_facts.h"

namespace host::desktop {

/// The name of the song among the objects of the bus.
std::string track_path(const SongFacts& song);

/// Appends the song as `a{sv}`, without the fields that are unknown, or an empty dictionary without
/// a song. Returns a negative error as the bus's library does.
int append_metadata(sd_bus_message* message, const std::optional<SongFacts>& song);

}  // namespace host::desktop
