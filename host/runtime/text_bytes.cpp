#include "host/runtime/text_bytes.h"

#include <vector>

#include "host/basics/utf16.h"

namespace host {

std::string utf8_of(NSString text) {
  std::vector<unichar> units(text.length());
  if (!units.empty()) text.getCharacters(units.data(), {0, units.size()});
  std::string bytes;
  utf16::append_utf8(bytes, units);
  return bytes;
}

}  // namespace host
