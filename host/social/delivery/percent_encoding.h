#pragma once

#include <string>
#include <string_view>

namespace host::social {

/// Every byte that an address gives a meaning to, and every one beyond ASCII, as `%XX`: only
/// letters, digits and `-._~` stand for themselves.
std::string percent_encoded(std::string_view bytes);

/// For letters, whose lines end with a carriage return and a line feed, however they ended before.
std::string with_mail_line_ends(std::string_view text);

}  // namespace host::social
