#pragma once

#include <compare>
#include <string>

namespace sonavue::device {

/// A system version, such as 8.4.
struct SystemVersion {
  int major = 0;
  int minor = 0;

  auto operator<=>(const SystemVersion&) const = default;
  std::string text() const { return std::to_string(major) + "." + std::to_string(minor); }
};

/// Parses two numbers separated by a point. Throws FormatError for any other text.
SystemVersion system_version(const std::string& text);

}  // namespace sonavue::device
