#include "tweak/library/title_index.h"

#include "objc/autorelease_pool.h"

namespace sonavue {
namespace {

// Between two titles, so that nothing is found across their border: no plain text holds it.
constexpr unsigned char kBorder = 0;
// Titles are read, and lists compared, in lots of this.
constexpr NSUInteger kLot = 512;
constexpr std::size_t kMostBytes = UINT32_MAX;

NSString title_of(MPMediaItem song) {
  return objc::cast<NSString>(song.valueForProperty(MPMediaItemPropertyTitle));
}

}  // namespace

bool title_holds(MPMediaItem song, NSString lower_case_text) {
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
  for (std::size_t behind = 0; behind < Needle::kReadBehind; ++behind)
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

void TitleIndex::find(NSString lower_case_text, Places& found) {
  found.clear();
  wanted_.clear();
  const bool is_plain = is_usable_ && writer_.add_lowercase(lower_case_text, wanted_);
  if (!is_plain || wanted_.count() == 0) {
    find_by_platform(lower_case_text, found);
    return;
  }
  find_bytes(Needle(wanted_.begin(), wanted_.count()), lower_case_text, found);
}

void TitleIndex::find_by_platform(NSString text, Places& found) const {
  const auto count = static_cast<std::uint32_t>(songs_->count());
  for (std::uint32_t place = 0; place < count; ++place) {
    if (title_holds(song(place), text)) found.add(place);
  }
}

// The last title that begins at the offset or before it, which is `from` or one behind it. Where
// much is found it is near, so the steps begin small.
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

void TitleIndex::find_bytes(const Needle& needle, NSString text, Places& found) const {
  const auto* const begin = bytes_.begin();
  const auto* const end = begin + starts_[starts_.count() - 1];
  const std::uint32_t* other = not_plain_.begin();
  const auto ask_platform_before = [&](std::uint32_t place) {
    for (; other != not_plain_.end() && *other < place; ++other) {
      if (title_holds(song(*other), text)) found.add(*other);
    }
  };
  std::uint32_t place = 0;
  for (const auto* from = begin; (from = needle.find_in(from, end));) {
    place = place_at(static_cast<std::size_t>(from - begin), place);
    ask_platform_before(place);
    found.add(place);
    from = begin + starts_[place + 1];
  }
  ask_platform_before(static_cast<std::uint32_t>(songs_->count()));
}

}  // namespace sonavue
