#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host::media {

// No label shows more than this; a longer tag is a mistake or an attack.
constexpr std::size_t longest_text_bytes = 1024;

// Valid UTF-8 without control characters or outer spaces, cut at a character boundary. Broken bytes
// become U+FFFD, so that a damaged title is still recognisable.
std::string repaired_text(std::string_view text);

// Returns a key that sorts and compares ignoring case, the same in every locale.
std::string folded_text(std::string_view text);
void append_folded(std::string& key, std::string_view text);

// Separates the parts of a key. It occurs in none of them, since tags hold no control characters.
constexpr char key_separator = '\x01';

// The leading number of "3", "3/12" or " 07 "; 0 for anything negative, absurd or not a number.
int number_in(std::string_view text);

}  // namespace host::media
