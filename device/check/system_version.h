#pragma once

#include <compare>
#include <string>

namespace sonavue::device {

/// The version of a system, as 8.4 is written.
struct SystemVersion {
  int major = 0;
  int minor = 0;

  auto operator<=>(const SystemVersion&) const = default;
  std::string text() const { return std::to_string(major) + "." + std::to_string(minor); }
};

/// Throws FormatError for everything that is not two numbers with a point between them.
SystemVersion system_version(const std::string& text);

}  // namespace sonavue::device
