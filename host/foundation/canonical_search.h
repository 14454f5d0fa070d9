#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host::foundation {

/// A range of UTF-16 units.
struct Stretch {
  std::size_t location;
  std::size_t length;
};

/// Finds the first occurrence of a non-empty text in another, regardless of how the letters of both
/// are encoded: a letter with its mark composed or decomposed, marks in any equivalent order, a
/// syllable or its parts. Only whole characters match: never a letter without its marks.
std::optional<Stretch> find_canonical(std::u16string_view text, std::u16string_view wanted);

/// True for a letter of one UTF-16 unit that is a whole character by itself, and whose other
/// encodings all use a mark or parts. For texts of such letters, comparing or searching the units
/// gives the same result as comparing or searching the characters.
bool is_plain_letter(char32_t letter);

/// Returns the text in composed form, with as few letters as possible. Empty for invalid UTF-8.
std::string composed(std::string_view utf8);

}  // namespace host::foundation
