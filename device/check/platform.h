#pragma once

#include "device/check/fact_lists.h"
#include "device/check/facts.h"
#include "device/check/findings.h"
#include "device/check/platform_use.h"
#include "device/check/system_range.h"

namespace sonavue::device {

/// What is known about the systems, and the library's own names.
struct Knowledge {
  Facts facts;
  FactLists lists;
  /// The library's own classes and selectors.
  std::set<std::string> own;
};

/// Throws FormatError if the facts are inconsistent. `source` is the project's folder.
Knowledge read_knowledge(const std::filesystem::path& source);

/// Describes how the facts contradict a message. Empty if they do not: either they do not cover the
/// class, or some system has the message with these types.
std::string contradiction(const Knowledge& known, const Message& message);

/// Checks that every system of the range has what the library uses: the classes, in a process with
/// their framework, and the messages. The lists must contain exactly what the facts do not prove.
void check_platform(const PlatformUse& use, const Knowledge& known, const SystemRange& range,
                    Findings& findings);

/// The systems for which the facts prove that. If there are none, both ends are equal.
SystemRange proven_range(const PlatformUse& use, const Knowledge& known);

}  // namespace sonavue::device
