#pragma once

#include <cstdint>

#include "objc/ref.h"
#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMediaItem.h"
#include "tweak/search/grown_array.h"
#include "tweak/search/plain_text.h"

namespace sonavue {

/// Places in a list of songs, in its order.
using Places = GrownArray<std::uint32_t>;

/// Does the song's title hold the text, whatever the title's case? The platform's own comparison.
bool title_holds(MPMediaItem song, NSString lower_case_text);

/// The titles of a list of songs, in lower case and one behind the other, so that a key in the
/// search field goes through a few megabytes and not through every song. It finds what
/// `title_holds` finds: titles that are not plain are left to that.
class TitleIndex {
 public:
  /// Makes the index of these songs unless it is there already. The songs are compared one by one,
  /// since anybody may have changed the list.
  void follow(NSArray songs);

  /// For when the songs may be the same but have other titles.
  void forget();

  /// The songs of the index: a list that never changes. Borrowed.
  NSArray songs() const { return songs_.get(); }

  /// Puts the places of the songs found into `found`. False when only the platform can tell: the
  /// text is not plain, or there is not the memory; what `found` holds then is nothing to go by.
  bool find(NSString lower_case_text, Places& found);

 private:
  bool has_songs(NSArray songs) const;
  void read_titles();
  void add_title(std::uint32_t place, NSString title);
  void find_long(Places& found) const;
  void find_short(Places& found) const;
  bool add_others(NSString text, Places& found) const;
  std::uint32_t place_at(std::size_t offset, std::uint32_t from) const;
  MPMediaItem song(std::uint32_t place) const;

  objc::Ref<NSArray> songs_;
  PlainTextWriter writer_;
  Bytes bytes_;
  Bytes wanted_;
  GrownArray<std::uint32_t> starts_;  // In `bytes_`; one more for the end.
  Places not_plain_;
  bool is_usable_ = false;
};

}  // namespace sonavue
