#pragma once

#include <cstdint>

#include "objc/ref.h"
#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMediaItem.h"
#include "tweak/search/grown_array.h"
#include "tweak/search/plain_text.h"

namespace sonavue {

/// Indexes into a list of songs, in ascending order.
using Places = GrownArray<std::uint32_t>;

/// Whether the song's title contains the text, ignoring the title's case, by the platform's own
/// comparison.
bool title_contains(MPMediaItem song, NSString lower_case_text);

/// The titles of a list of songs, in lower case and one after the other, so that a keystroke in the
/// search field scans a few megabytes instead of sending messages to every song. It finds what
/// `title_contains` finds, and uses that function for titles that are not plain.
class TitleIndex {
 public:
  /// Reads up to `most` titles that have not been read yet. Returns true when all have been. Does
  /// not notice every change of the list; `follow` does.
  bool read_some(NSArray songs, NSUInteger most);

  /// Reads all titles that have not been read yet. Compares the songs one by one, since any code
  /// may have changed the list.
  void follow(NSArray songs);

  /// Discards the index. Needed when the songs may be the same but their titles have changed.
  void forget();

  /// The songs of the index. Borrowed; the list may grow, but never changes otherwise.
  NSArray songs() const { return songs_.get(); }

  /// Writes the places of the matching songs to `found`. Returns false if the text is not plain or
  /// memory is out; then `found` is invalid, and the caller has to use the platform's comparison.
  bool find(NSString lower_case_text, Places& found);

 private:
  NSUInteger count() const { return songs_->count(); }
  bool begins(NSArray songs) const;
  bool seems_to_begin(NSArray songs) const;
  void read_title(MPMediaItem song);
  bool make_usable();
  void find_plain(Places& found) const;
  bool add_other_titles(NSString text, Places& found) const;
  std::uint32_t place_at(std::size_t offset, std::uint32_t from) const;
  MPMediaItem song(std::uint32_t place) const;

  objc::Ref<NSMutableArray> songs_;
  PlainTextWriter writer_;
  Bytes bytes_;
  Bytes wanted_;
  GrownArray<std::uint32_t> ends_;  // Offsets into `bytes_`.
  Places not_plain_;
};

/// The index of the songs that the panel lists.
TitleIndex& title_index();

}  // namespace sonavue
