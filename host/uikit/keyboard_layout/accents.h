#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::uikit {

/// Returns the letter itself and the variants that a long press offers, nearest first; nothing for
/// a letter without variants. All in lower case.
std::vector<std::string> accents_of(std::string_view letter);

}  // namespace host::uikit
