#include "host/console/result.h"

#include <fmt/format.h>

#include <algorithm>

namespace host::console {

std::string describe(const Problem& problem, std::string_view line) {
  const auto before = line.substr(0, std::min(problem.offset, line.size()));
  const auto characters = std::count_if(before.begin(), before.end(), [](char byte) {
    const bool continues = (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
    return !continues;
  });
  return fmt::format("{} (column {})", problem.text, characters + 1);
}

}  // namespace host::console
