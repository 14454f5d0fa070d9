#pragma once

#include <string>
#include <string_view>

namespace host {

/// The text as XML, and what is made like it, takes it between tags.
inline std::string as_markup(std::string_view text) {
  std::string made;
  for (const char sign : text) {
    if (sign == '&') {
      made += "&amp;";
    } else if (sign == '<') {
      made += "&lt;";
    } else if (sign == '>') {
      made += "&gt;";
    } else {
      made += sign;
    }
  }
  return made;
}

}  // namespace host
