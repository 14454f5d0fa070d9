#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host::property_list {

/// Returns nothing when the text has an unpaired surrogate or half a unit.
std::optional<std::string> utf8_from_utf16(std::string_view bytes, bool is_big_endian);

/// Decodes a file of characters, by its byte order mark. Returns nothing when the bytes are not in
/// the encoding, or one of them is zero.
std::optional<std::string> utf8_from_file(std::string_view bytes);

/// Appends the character with this number. Returns false for a number that no character has, and
/// for zero.
bool append_character(std::string& text, std::uint32_t code);

std::optional<std::string> from_base64(std::string_view text);
std::string to_base64(std::string_view bytes);

}  // namespace host::property_list
