#include "host/media/text_order.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace host::media {
namespace {

constexpr std::size_t chunk_bytes = sizeof(std::uint64_t);

// Eight bytes of a text as a number, so that comparing texts needs neither their memory nor a call.
struct Entry {
  std::uint64_t chunk = 0;
  std::uint32_t place = 0;
};

// Zero bytes follow the end of a text.
std::uint64_t chunk_at(std::string_view text, std::size_t start) {
  std::uint64_t chunk = 0;
  if (start < text.size())
    std::memcpy(&chunk, text.data() + start, std::min(chunk_bytes, text.size() - start));
  return std::endian::native == std::endian::little ? __builtin_bswap64(chunk) : chunk;
}

bool is_last(std::uint64_t chunk) {
  return (chunk & 0xff) == 0;
}

}  // namespace

std::vector<std::uint32_t> order_of_texts(
    std::span<const std::string_view> texts,
    const std::function<bool(std::uint32_t, std::uint32_t)>& comes_first) {
  std::vector<Entry> entries(texts.size());
  for (std::uint32_t place = 0; place < texts.size(); ++place)
    entries[place].place = place;

  // Texts that are equal so far, and how many bytes that is.
  struct Run {
    std::span<Entry> entries;
    std::size_t start;
  };
  std::vector<Run> runs{{entries, 0}};
  while (!runs.empty()) {
    const Run run = runs.back();
    runs.pop_back();
    for (Entry& entry : run.entries)
      entry.chunk = chunk_at(texts[entry.place], run.start);
    if (!std::ranges::is_sorted(run.entries, {}, &Entry::chunk))
      std::ranges::sort(run.entries, {}, &Entry::chunk);
    for (auto first = run.entries.begin(); first != run.entries.end();) {
      const auto last = std::find_if(first, run.entries.end(), [first](const Entry& entry) {
        return entry.chunk != first->chunk;
      });
      const std::span equal{first, last};
      if (equal.size() > 1 && !is_last(first->chunk)) {
        runs.push_back({equal, run.start + chunk_bytes});
      } else if (equal.size() > 1) {
        std::ranges::sort(equal, comes_first, &Entry::place);
      }
      first = last;
    }
  }

  std::vector<std::uint32_t> places;
  places.reserve(entries.size());
  for (const Entry& entry : entries)
    places.push_back(entry.place);
  return places;
}

}  // namespace host::media
