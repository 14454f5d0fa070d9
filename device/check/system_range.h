#pragma once

#include "device/check/system_version.h"

namespace sonavue::device {

/// The systems from one on, up to and without another.
struct SystemRange {
  SystemVersion from;
  SystemVersion to;

  bool operator==(const SystemRange&) const = default;
  bool has(const SystemVersion& system) const { return from <= system && system < to; }
  /// "8.0 up to and without 9.0".
  std::string text() const;
};

/// What the relations to `firmware` in a control file promise. Throws FormatError where one end of
/// the range is open.
SystemRange promised_range(const std::string& control);

}  // namespace sonavue::device
