#include "host/social/delivery/mail_lines.h"

namespace host::social {

std::string with_mail_line_ends(std::string_view text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\r' && text[at] != '\n') {
      lines += text[at];
      continue;
    }
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
    lines += "\r\n";
  }
  return lines;
}

}  // namespace host::social
