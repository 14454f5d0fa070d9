#pragma once

#include "device/check/system_version.h"

namespace sonavue::device {

/// A range of systems: from `from`, up to but not including `to`.
struct SystemRange {
  SystemVersion from;
  SystemVersion to;

  bool operator==(const SystemRange&) const = default;
  bool has(const SystemVersion& system) const { return from <= system && system < to; }
  /// "8.0 up to and without 9.0".
  std::string text() const;
};

/// The range that the relations to `firmware` in a control file promise. Throws FormatError if
/// either end is missing.
SystemRange promised_range(const std::string& control);

}  // namespace sonavue::device
