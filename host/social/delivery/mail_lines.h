#pragma once

#include <string>
#include <string_view>

namespace host::social {

/// Converts all line ends to a carriage return and a line feed, as mail requires.
std::string with_mail_line_ends(std::string_view text);

}  // namespace host::social
