#include "host/foundation/canonical_search.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "host/basics/utf16.h"

namespace host::foundation {
namespace {

constexpr char16_t kFirstMark = 0x300;
// The vowels and final consonants of Korean syllables, as separate letters.
constexpr char32_t kFirstVowel = 0x1160;
constexpr char32_t kLastEnd = 0x11ff;
constexpr std::size_t kMostParts = G_UNICHAR_MAX_DECOMPOSITION_LENGTH;

/// An unpaired surrogate counts as a letter.
char32_t letter_at(std::u16string_view text, std::size_t place, std::size_t& units) {
  const char16_t first = text[place];
  const bool is_pair =
      utf16::is_high(first) && place + 1 < text.size() && utf16::is_low(text[place + 1]);
  units = is_pair ? 2 : 1;
  return is_pair ? utf16::joined(first, text[place + 1]) : first;
}

/// True when the letter belongs to the same character as the previous letter.
bool extends_character(char32_t letter) {
  if (letter < kFirstMark) return false;
  return g_unichar_ismark(letter) || (letter >= kFirstVowel && letter <= kLastEnd);
}

/// A fully decomposed text, in canonical order.
class Parts {
 public:
  explicit Parts(std::u16string_view text) {
    letters_.reserve(text.size());
    places_.reserve(text.size() + 1);
    std::size_t units = 0;
    for (std::size_t place = 0; place < text.size(); place += units) {
      const char32_t letter = letter_at(text, place, units);
      if (place == 0 || !extends_character(letter)) begin_character();
      add(letter, place);
    }
    begin_character();
    places_.push_back(text.size());
  }

  std::u32string_view letters() const { return letters_; }
  /// True when a character begins or ends at this part.
  bool is_between(std::size_t part) const { return std::ranges::binary_search(characters_, part); }
  /// The index of the unit at which the character that begins with this part starts in the text.
  std::size_t place_of(std::size_t part) const { return places_[part]; }

 private:
  void begin_character() {
    if (!characters_.empty()) put_in_order(characters_.back());
    characters_.push_back(letters_.size());
  }
  void add(char32_t letter, std::size_t place) {
    std::array<gunichar, kMostParts> parts;
    const gsize count = g_unichar_fully_decompose(letter, FALSE, parts.data(), parts.size());
    letters_.append(parts.begin(), parts.begin() + static_cast<std::ptrdiff_t>(count));
    places_.insert(places_.end(), count, place);
  }
  /// Marks on different sides of a letter are sorted; marks on the same side keep their order.
  void put_in_order(std::size_t first) {
    const auto rank = [](char32_t letter) { return g_unichar_combining_class(letter); };
    const auto end = letters_.end();
    for (auto from = letters_.begin() + static_cast<std::ptrdiff_t>(first); from != end;) {
      const auto marks = std::find_if(from, end, rank);
      from = std::find_if_not(marks, end, rank);
      std::stable_sort(marks, from, [&](char32_t a, char32_t b) { return rank(a) < rank(b); });
    }
  }

  std::u32string letters_;
  std::vector<std::size_t> characters_;
  std::vector<std::size_t> places_;
};

}  // namespace

std::optional<Stretch> find_canonical(std::u16string_view text, std::u16string_view wanted) {
  const Parts within(text);
  const Parts sought(wanted);
  const std::u32string_view letters = within.letters();
  const std::size_t length = sought.letters().size();
  for (std::size_t from = 0; (from = letters.find(sought.letters(), from)) != letters.npos;
       ++from) {
    if (!within.is_between(from) || !within.is_between(from + length)) continue;
    const std::size_t place = within.place_of(from);
    return Stretch{place, within.place_of(from + length) - place};
  }
  return std::nullopt;
}

bool is_plain_letter(char32_t letter) {
  struct Range {
    char32_t first;
    char32_t last;
  };
  // Latin, Cyrillic, and the common syllables and ideographs.
  constexpr Range ranges[] = {{0x01, 0x2ff},    {0x400, 0x482},   {0x3041, 0x3096},
                              {0x30a1, 0x30fa}, {0x4e00, 0x9fff}, {0xac00, 0xd7a3}};
  return std::ranges::any_of(ranges, [letter](const Range& range) {
    return letter >= range.first && letter <= range.last;
  });
}

std::string composed(std::string_view utf8) {
  const std::unique_ptr<char, decltype(&g_free)> made(
      g_utf8_normalize(utf8.data(), static_cast<gssize>(utf8.size()), G_NORMALIZE_NFC), &g_free);
  return made ? made.get() : "";
}

}  // namespace host::foundation
