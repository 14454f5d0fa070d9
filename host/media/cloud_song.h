#pragma once

#include <string>
#include <string_view>

#include "host/media/tag_reader.h"

namespace host::media {

// A song of which the user has only the entry: its sound lies in the cloud, out of reach. It stands
// in the music folders as a text file `NAME.cloud.toml`:
//
//   title = "A song"            no key is needed; without a title the name of the file serves
//   artist = "Somebody"
//   album = "An album"
//   album_artist = "Somebody"
//   genre = "Ambient"
//   composer = "Somebody else"
//   track = 3
//   disc = 1
//   duration = 215.5            seconds
//   compilation = false
//   cover = "picture.jpg"       beside this file, or by its whole path; without it the folder's own
//                               picture serves, as for any song
//
// The picture is looked at when the entry has changed.
bool has_cloud_name(std::string_view name);

// Reads any file without throwing. What is no TOML, or has a value of another kind than above, is
// refused with the reason.
TagReading read_cloud_song(const std::string& path);

// A song or an entry, whichever the name says.
TagReading read_song(const std::string& path);

}  // namespace host::media
