#include "host/launcher/environment.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>
#include <vector>

#include "host/basics/ascii.h"
#include "host/basics/utf8.h"
#include "host/runtime/log.h"

namespace host::launcher {
namespace {

// Without them, the user's files would be looked for somewhere else.
constexpr std::string_view kNeeded[] = {"HOME", "XDG_DATA_HOME"};

std::vector<std::string> unreadable_variables() {
  std::vector<std::string> names;
  for (char** entry = environ; *entry; ++entry) {
    const std::string_view text = *entry;
    if (!utf8::is_valid(text)) names.emplace_back(text.substr(0, text.find('=')));
  }
  return names;
}

}  // namespace

std::optional<std::string> remove_unreadable_variables() {
  for (const std::string& name : unreadable_variables()) {
    for (const std::string_view needed : kNeeded) {
      if (name == needed)
        return name + " is not valid UTF-8: " + ascii_of(std::getenv(name.c_str())) +
               "; set it to a folder that is";
    }
    spdlog::warn("the variable {} is left out: it is not valid UTF-8", ascii_of(name));
    unsetenv(name.c_str());
  }
  return std::nullopt;
}

}  // namespace host::launcher
