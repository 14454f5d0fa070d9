#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::uikit {

/// The letter itself and its relatives that a long press offers, nearest first; nothing for a
/// letter that has none. All in lower case.
std::vector<std::string> accents_of(std::string_view letter);

}  // namespace host::uikit
