#include "tweak/search/title_index.h"

#include <new>

#include "objc/autorelease_pool.h"
#include "tweak/search/needle.h"

namespace sonavue {
namespace {

// Separates two titles, so that no hit spans both: plain texts never contain it.
constexpr unsigned char kBorder = 0;
// Titles are read and lists are compared in batches of this size.
constexpr NSUInteger kLot = 512;
constexpr std::size_t kMostBytes = UINT32_MAX;
// In bytes.
constexpr std::size_t kUsualTitle = 32;

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

bool TitleIndex::begins(NSArray songs) const {
  const NSUInteger count = this->count();
  if (songs.count() < count) return false;
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

bool TitleIndex::seems_to_begin(NSArray songs) const {
  const NSUInteger count = this->count();
  return count == 0 || (songs.count() >= count &&
                        songs.objectAtIndex(count - 1) == songs_->objectAtIndex(count - 1));
}

bool TitleIndex::read_some(NSArray songs, NSUInteger most) {
  if (!seems_to_begin(songs)) forget();
  if (count() == 0) {
    // Arrays that grow copy what they hold, and a finger would wait for that.
    songs_.reset(NSMutableArray::arrayWithCapacity(songs.count()));
    ends_.reserve(songs.count());
    bytes_.reserve(songs.count() * kUsualTitle);
  }
  objc::Object lot[kLot];
  for (NSUInteger read = 0; read < most;) {
    const NSUInteger left = songs.count() - count();
    const NSUInteger wanted = most - read < kLot ? most - read : kLot;
    const NSRange range{count(), left < wanted ? left : wanted};
    if (range.length == 0) break;
    const objc::AutoreleasePool pool;
    songs.getObjects(lot, range);
    for (NSUInteger i = 0; i < range.length; ++i)
      read_title(objc::cast<MPMediaItem>(lot[i]));
    read += range.length;
  }
  return count() == songs.count();
}

void TitleIndex::follow(NSArray songs) {
  if (!begins(songs)) forget();
  read_some(songs, songs.count());
}

// The hits of an earlier search may retain the list, so it is replaced rather than emptied.
void TitleIndex::forget() {
  songs_.reset();
  bytes_.clear();
  ends_.clear();
  not_plain_.clear();
}

void TitleIndex::read_title(MPMediaItem song) {
  const NSString title = title_of(song);
  if (title.length() != 0 && !writer_.add_lowercase(title, bytes_))
    not_plain_.add(static_cast<std::uint32_t>(count()));
  bytes_.add(kBorder);
  ends_.add(static_cast<std::uint32_t>(bytes_.count()));
  songs_->addObject(song);
}

// The needle may read beyond the last title.
bool TitleIndex::make_usable() {
  bytes_.reserve(bytes_.count() + Needle::kReadBehind);
  return !bytes_.has_failed() && !ends_.has_failed() && !not_plain_.has_failed() &&
         count() < UINT32_MAX && bytes_.count() < kMostBytes;
}

bool TitleIndex::find(NSString lower_case_text, Places& found) {
  found.clear();
  wanted_.clear();
  const bool is_plain = make_usable() && writer_.add_lowercase(lower_case_text, wanted_);
  if (!is_plain || wanted_.count() == 0) return false;
  find_plain(found);
  return add_other_titles(lower_case_text, found) && !found.has_failed();
}

// The first title, at `from` or later, that ends behind `offset`. Frequent hits are close together,
// so the search starts with small steps.
std::uint32_t TitleIndex::place_at(std::size_t offset, std::uint32_t from) const {
  const auto count = static_cast<std::uint32_t>(ends_.count());
  std::uint32_t step = 1;
  while (step <= count - from && ends_[from + step - 1] <= offset) {
    from += step;
    step *= 2;
  }
  for (; step > 0; step /= 2) {
    if (step <= count - from && ends_[from + step - 1] <= offset) from += step;
  }
  return from;
}

void TitleIndex::find_plain(Places& found) const {
  const Needle needle(wanted_.begin(), wanted_.count());
  const auto* const begin = bytes_.begin();
  const auto* const end = begin + bytes_.count();
  std::uint32_t place = 0;
  for (const auto* from = begin; (from = needle.find_in(from, end));) {
    place = place_at(static_cast<std::size_t>(from - begin), place);
    found.add(place);
    from = begin + ends_[place];
  }
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

// Never destroyed: it lives as long as the process.
TitleIndex& title_index() {
  alignas(TitleIndex) static unsigned char place[sizeof(TitleIndex)];
  static TitleIndex* made = nullptr;
  if (!made) made = new (place) TitleIndex;
  return *made;
}

}  // namespace sonavue
