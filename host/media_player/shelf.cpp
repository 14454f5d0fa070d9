#include "host/media_player/shelf.h"

#include "host/media_player/library_text.h"

namespace host::media_player {

// Callers that were given them during this turn rely on them until the turn ends.
Shelf::~Shelf() {
  for (auto& [address, text] : texts_)
    text.leak().autorelease();
  for (auto& [album, number] : album_numbers_)
    number.leak().autorelease();
}

NSString Shelf::shared_text(std::string_view text) {
  if (text.empty()) return nil;
  objc::Ref<NSString>& known = texts_[text.data()];
  if (!known) known = objc::Ref<NSString>::adopt(LibraryText::make(text, library_));
  return known.get();
}

// Songs are ordered by title, and equal titles are one text: songs that share one are neighbours.
NSString Shelf::make_title(const media::Track& track) {
  if (track.title.empty()) return nil;
  const auto tracks = library_->tracks();
  const auto has_title_of_track = [&track](const media::Track& other) {
    return other.title.data() == track.title.data();
  };
  const bool is_shared = (&track != &tracks.front() && has_title_of_track(*(&track - 1))) ||
                         (&track != &tracks.back() && has_title_of_track(*(&track + 1)));
  if (is_shared) return shared_text(track.title).retain();
  return LibraryText::make(track.title, library_);
}

NSNumber Shelf::album_number(std::uint64_t album_id) {
  objc::Ref<NSNumber>& known = album_numbers_[album_id];
  if (!known) known.reset(NSNumber::numberWithUnsignedLongLong(album_id));
  return known.get();
}

NSString make_string(std::string_view text) {
  constexpr unsigned utf8 = 4;  // GNUstep's encoding constants are shorter than the platform's.
  const void* bytes = text.data();
  return objc::send<NSString>(NSString::alloc(), "initWithBytes:length:encoding:"_sel, bytes,
                              static_cast<NSUInteger>(text.size()), utf8);
}

}  // namespace host::media_player
