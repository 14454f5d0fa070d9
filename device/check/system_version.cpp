#include "device/check/system_version.h"

#include <fmt/core.h>

#include <regex>

#include "device/macho/bytes.h"

namespace sonavue::device {

SystemVersion system_version(const std::string& text) {
  static const std::regex version("([0-9]{1,3})\\.([0-9]{1,3})");
  std::smatch parts;
  if (!std::regex_match(text, parts, version))
    throw FormatError(fmt::format("'{}' is not a system version", text));
  return {std::stoi(parts[1]), std::stoi(parts[2])};
}

}  // namespace sonavue::device
