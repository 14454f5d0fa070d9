#include "host/social/composers/character_count.h"

#include "host/uikit/text_layout/characters.h"

namespace host::social {

std::size_t character_count(NSString text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.length(); ++count)
    at = uikit::character_end(text, at);
  return count;
}

}  // namespace host::social
