#include "host/uikit/keyboard_layout/accents.h"

#include <algorithm>

#include "host/uikit/keyboard_layout/row_builder.h"

namespace host::uikit {
namespace {

// Each entry begins with the letter on the key.
constexpr std::string_view kFamilies[] = {"aàáâäæãåā", "eèéêëēėę", "iîïíīįì", "oôöòóœøōõ",
                                          "uûüùúū",    "nñń",      "cçćč",    "sßśš",
                                          "lł",        "zžźż",     "yÿ"};

}  // namespace

std::vector<std::string> accents_of(std::string_view letter) {
  const auto* family = std::find_if(std::begin(kFamilies), std::end(kFamilies),
                                    [=](std::string_view one) { return one.starts_with(letter); });
  if (letter.empty() || family == std::end(kFamilies)) return {};
  std::vector<std::string> offered;
  for (const std::string_view point : code_points(*family))
    offered.emplace_back(point);
  return offered;
}

}  // namespace host::uikit
