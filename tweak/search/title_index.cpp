#include "tweak/search/title_index.h"

#include "objc/autorelease_pool.h"
#include "objc/ref.h"
#include "tweak/search/needle.h"
#include "tweak/search/short_needle.h"

namespace sonavue {
namespace {

// Separates two titles, so that no hit spans both: plain texts never contain it.
constexpr unsigned char kBorder = 0;
// Titles are read and lists are compared in batches of this size.
constexpr NSUInteger kLot = 512;
constexpr std::size_t kMostBytes = UINT32_MAX;
// How far the needles may read beyond the last title.
constexpr std::size_t kReadBehind =
    Needle::kReadBehind > ShortNeedle::kReadBehind ? Needle::kReadBehind : ShortNeedle::kReadBehind;

NSString title_of(MPMediaItem song) {
  return objc::cast<NSString>(song.valueForProperty(MPMediaItemPropertyTitle));
}

/// Merges two sorted lists into `found`, from the end, so that each place is moved only once.
void merge(const Places& others, Places& found) {
  std::size_t from = found.count();
  std::size_t left = others.count();
  found.resize(from + left);
  if (found.has_failed()) return;
  std::uint32_t* const places = found.begin();
  for (std::size_t to = from + left; left > 0;) {
    const bool is_found_last = from > 0 && places[from - 1] > others[left - 1];
    places[--to] = is_found_last ? places[--from] : others[--left];
  }
}

}  // namespace

bool title_contains(MPMediaItem song, NSString lower_case_text) {
  const NSString title = title_of(song);
  if (title.length() == 0) return false;
  return title.lowercaseString().rangeOfString(lower_case_text).length != 0;
}

MPMediaItem TitleIndex::song(std::uint32_t place) const {
  return objc::cast<MPMediaItem>(songs_->objectAtIndex(place));
}

bool TitleIndex::has_songs(NSArray songs) const {
  const NSUInteger count = songs.count();
  if (!songs_ || songs_->count() != count) return false;
  objc::Object ours[kLot];
  objc::Object theirs[kLot];
  for (NSUInteger first = 0; first < count; first += kLot) {
    const NSRange lot{first, count - first < kLot ? count - first : kLot};
    songs_->getObjects(ours, lot);
    songs.getObjects(theirs, lot);
    if (__builtin_memcmp(ours, theirs, lot.length * sizeof *ours) != 0) return false;
  }
  return true;
}

void TitleIndex::follow(NSArray songs) {
  if (has_songs(songs)) return;
  songs_ = objc::Ref<NSArray>::adopt(songs.copy());
  read_titles();
}

void TitleIndex::forget() {
  songs_.reset();
}

void TitleIndex::read_titles() {
  bytes_.clear();
  starts_.clear();
  not_plain_.clear();
  const NSUInteger count = songs_->count();
  for (NSUInteger first = 0; first < count; first += kLot) {
    const objc::AutoreleasePool pool;
    for (NSUInteger place = first; place < count && place < first + kLot; ++place)
      add_title(static_cast<std::uint32_t>(place),
                title_of(song(static_cast<std::uint32_t>(place))));
  }
  starts_.add(static_cast<std::uint32_t>(bytes_.count()));
  for (std::size_t behind = 0; behind < kReadBehind; ++behind)
    bytes_.add(kBorder);
  bytes_.shrink();
  starts_.shrink();
  is_usable_ = !bytes_.has_failed() && !starts_.has_failed() && !not_plain_.has_failed() &&
               count < UINT32_MAX && bytes_.count() < kMostBytes;
}

void TitleIndex::add_title(std::uint32_t place, NSString title) {
  starts_.add(static_cast<std::uint32_t>(bytes_.count()));
  if (title.length() != 0 && !writer_.add_lowercase(title, bytes_)) not_plain_.add(place);
  bytes_.add(kBorder);
}

bool TitleIndex::find(NSString lower_case_text, Places& found) {
  found.clear();
  wanted_.clear();
  const bool is_plain = is_usable_ && writer_.add_lowercase(lower_case_text, wanted_);
  if (!is_plain || wanted_.count() == 0) return false;
  if (wanted_.count() <= ShortNeedle::kLongest) {
    find_short(found);
  } else {
    find_long(found);
  }
  return add_other_titles(lower_case_text, found) && !found.has_failed();
}

// The last title that starts at or before `offset`; it is `from` or a later one. Frequent hits are
// close together, so the search starts with small steps.
std::uint32_t TitleIndex::place_at(std::size_t offset, std::uint32_t from) const {
  const auto count = static_cast<std::uint32_t>(starts_.count() - 1);
  std::uint32_t step = 1;
  while (step < count - from && starts_[from + step] <= offset) {
    from += step;
    step *= 2;
  }
  for (; step > 0; step /= 2) {
    if (step < count - from && starts_[from + step] <= offset) from += step;
  }
  return from;
}

void TitleIndex::find_long(Places& found) const {
  const Needle needle(wanted_.begin(), wanted_.count());
  const auto* const begin = bytes_.begin();
  const auto* const end = begin + starts_[starts_.count() - 1];
  std::uint32_t place = 0;
  for (const auto* from = begin; (from = needle.find_in(from, end));) {
    place = place_at(static_cast<std::size_t>(from - begin), place);
    found.add(place);
    from = begin + starts_[place + 1];
  }
}

// Writes the place of every title to the next slot, but advances the slot only for hits.
void TitleIndex::find_short(Places& found) const {
  const ShortNeedle needle(wanted_.begin(), wanted_.count());
  const auto count = static_cast<std::uint32_t>(starts_.count() - 1);
  found.resize(count);
  if (found.has_failed()) return;
  std::uint32_t* kept = found.begin();
  std::uint32_t place = 0;
  bool is_held = false;
  for (const auto* block = bytes_.begin(); place < count; block += ShortNeedle::kPlaces) {
    std::uint64_t hits = needle.places_in(block);
    std::uint64_t borders = ShortNeedle::places_of(kBorder, block);
    for (; borders && place < count; borders &= borders - 1) {
      const std::uint64_t title = borders ^ (borders - 1);  // All bits up to the border.
      *kept = place++;
      kept += is_held | ((hits & title) != 0);
      hits &= ~title;
      is_held = false;
    }
    is_held |= hits != 0;
  }
  found.resize(static_cast<std::size_t>(kept - found.begin()));
}

// Searches the titles that are not plain with the platform's search, and merges the hits into
// `found`. Returns false when out of memory.
bool TitleIndex::add_other_titles(NSString text, Places& found) const {
  if (not_plain_.count() == 0) return true;
  Places others;
  for (const std::uint32_t place : not_plain_) {
    if (title_contains(song(place), text)) others.add(place);
  }
  merge(others, found);
  return !others.has_failed();
}

}  // namespace sonavue
