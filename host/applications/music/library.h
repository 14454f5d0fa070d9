#pragma once

#include <cstdint>

#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::music {

/// Every song, in the library's order.
NSArray all_songs();
/// Nil when the library does not have the song.
MPMediaItem song_with_id(std::uint64_t song);
/// 0 for nil.
std::uint64_t id_of(MPMediaItem item);

/// Nil when the song has no such tag.
NSString title_of(MPMediaItem item);
NSString artist_of(MPMediaItem item);
/// "Artist — Album", or whichever of the two is known.
NSString line_of(MPMediaItem item);
/// The song's cover, `side` points large; a neutral picture when it has none.
UIImage cover_of(MPMediaItem item, CGFloat side);

}  // namespace host::music
