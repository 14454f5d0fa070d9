#pragma once

#include "device/check/fact_lists.h"
#include "device/check/facts.h"
#include "device/check/findings.h"
#include "device/check/platform_use.h"
#include "device/check/system_range.h"

namespace sonavue::device {

/// What the systems are known to be, and what is the library's own.
struct Knowledge {
  Facts facts;
  FactLists lists;
  /// Classes and selectors of the library's own.
  std::set<std::string> own;
};

/// Throws FormatError for facts that cannot be believed. `source` is the project's folder.
Knowledge read_knowledge(const std::filesystem::path& source);

/// What a message is known to be otherwise than it is named, or nothing: a class that the facts
/// cover has it on some system, with these types.
std::string contradiction(const Knowledge& known, const Message& message);

/// Every system of the range has what the library uses: its classes, in a process that has their
/// framework, and its messages. What the facts do not prove stands in the lists, and nothing else.
void check_platform(const PlatformUse& use, const Knowledge& known, const SystemRange& range,
                    Findings& findings);

/// The systems on which the facts prove that; both ends are alike where there are none.
SystemRange proven_range(const PlatformUse& use, const Knowledge& known);

}  // namespace sonavue::device
