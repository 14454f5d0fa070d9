#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host::foundation {

/// A stretch of UTF-16 units.
struct Stretch {
  std::size_t location;
  std::size_t length;
};

/// Where a text that is not empty stands first in another, however the letters of both are spelt: a
/// letter with a mark in one piece or in two, marks in any order that reads the same, a syllable or
/// its parts. Whole characters alone are found: no letter without the marks that are on it.
std::optional<Stretch> find_canonical(std::u16string_view text, std::u16string_view wanted);

/// Is it a letter of one UTF-16 unit that is a whole character by itself, and spelt in another way
/// only with a mark or in parts? Two texts of such letters are equal, and one is found in the
/// other, exactly when their units say so.
bool is_plain_letter(char32_t letter);

/// The same text in as few letters as it can be spelt with. Empty for what is no UTF-8.
std::string composed(std::string_view utf8);

}  // namespace host::foundation
