#include "host/activator/registry/listener_record.h"

#include <algorithm>

namespace host::activator {

bool ListenerRecord::admits(std::string_view mode) const {
  return !modes || std::find(modes->begin(), modes->end(), mode) != modes->end();
}

}  // namespace host::activator
