#pragma once

#include <string>
#include <string_view>

#include "host/media/tag_reader.h"

namespace host::media {

// A song whose sound exists only in the cloud, out of reach. In the music folders it is a text file
// `NAME.cloud.toml`:
//
//   title = "A song"            every key is optional; the default title is the name of the file
//   artist = "Somebody"
//   album = "An album"
//   album_artist = "Somebody"
//   genre = "Ambient"
//   composer = "Somebody else"
//   track = 3
//   disc = 1
//   duration = 215.5            seconds
//   compilation = false
//   cover = "picture.jpg"       relative to this file, or an absolute path; the default is the
//                               folder's picture, as for any song
//
// The picture is read again only when the entry changes.
//
// Reads any file without throwing. A file that is not TOML, or has a value of the wrong type, is
// refused with the reason.
TagReading read_cloud_song(const std::string& path);

// Reads a song or an entry, depending on the file's name. A file that has ended a process is not
// opened; the log has said so, and the result has no reason.
TagReading read_song(const std::string& path);

}  // namespace host::media
