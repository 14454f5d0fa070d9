#include "host/uikit/text_layout/words.h"

#include <pango/pango.h>

#include <vector>

#include "host/uikit/text_layout/characters.h"
#include "host/uikit/text_layout/styled_text.h"

namespace host::uikit {
namespace {

/// Where words begin and end, for every position of a text in UTF-16 units.
class WordPlaces {
 public:
  explicit WordPlaces(NSString text) : starts_(text.length() + 1), ends_(text.length() + 1) {
    const std::string bytes = utf8_of(text);
    const auto count = static_cast<int>(g_utf8_strlen(bytes.c_str(), -1)) + 1;
    std::vector<PangoLogAttr> places(static_cast<std::size_t>(count));
    pango_get_log_attrs(bytes.c_str(), static_cast<int>(bytes.size()), -1,
                        pango_language_get_default(), places.data(), count);
    std::size_t unit = 0;
    const char* at = bytes.c_str();
    for (const PangoLogAttr& place : places) {
      if (unit >= starts_.size()) break;
      starts_[unit] = place.is_word_start;
      ends_[unit] = place.is_word_end;
      if (!*at) break;
      unit += g_utf8_get_char(at) > 0xFFFF ? 2 : 1;
      at = g_utf8_next_char(at);
    }
  }

  bool starts(std::size_t unit) const { return starts_[unit]; }
  bool ends(std::size_t unit) const { return ends_[unit]; }
  std::size_t length() const { return starts_.size() - 1; }

  std::size_t end_after(std::size_t index) const {
    while (index < length() && !ends_[++index]) {
    }
    return index;
  }
  std::size_t start_before(std::size_t index) const {
    while (index > 0 && !starts_[--index]) {
    }
    return index;
  }

 private:
  std::vector<bool> starts_;
  std::vector<bool> ends_;
};

}  // namespace

NSRange word_at(NSString text, std::size_t index) {
  const WordPlaces places(text);
  if (places.length() == 0) return {};
  index = std::min(index, places.length());
  const std::size_t start =
      index < places.length() && places.starts(index) ? index : places.start_before(index);
  const std::size_t end = places.end_after(start);
  if (places.starts(start) && places.ends(end) && index <= end) return {start, end - start};
  const std::size_t single = character_start(text, std::min(index, places.length() - 1));
  return {single, character_end(text, single) - single};
}

std::size_t next_word_end(NSString text, std::size_t index) {
  return WordPlaces(text).end_after(index);
}

std::size_t previous_word_start(NSString text, std::size_t index) {
  return WordPlaces(text).start_before(index);
}

}  // namespace host::uikit
