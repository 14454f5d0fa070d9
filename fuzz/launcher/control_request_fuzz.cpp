#include <cstdint>
#include <cstdlib>

#include "host/launcher/control_request.h"

using namespace host::launcher;

namespace {

/// Names become file names.
bool is_inside(const std::string& name) {
  return name.find('/') == std::string::npos && !name.starts_with('.');
}

}  // namespace

/// Checks that a line is refused or is exactly what its request would be sent as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view line(reinterpret_cast<const char*>(data), size);
  const auto request = read_request(line);
  if (!request) return 0;
  if (line_of(*request) != line) std::abort();
  if (!is_inside(request->bundle) || !is_inside(request->program)) std::abort();
  return 0;
}
