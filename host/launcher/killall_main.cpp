#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "host/launcher/control_socket.h"

// Stands first on the path of the device's processes. `killall SpringBoard` means the home screen
// of this device, and no process of that name elsewhere on the machine; everything else is the
// machine's own business.

namespace {

namespace fs = std::filesystem;

/// The next `killall` on the path that is not this program.
fs::path machines_own() {
  const char* variable = std::getenv("PATH");
  std::string_view rest = variable ? variable : "/usr/bin:/bin";
  std::error_code error;
  const fs::path self = fs::read_symlink("/proc/self/exe", error);
  while (!rest.empty()) {
    const auto colon = rest.find(':');
    const fs::path candidate = fs::path(rest.substr(0, colon)) / "killall";
    rest = colon == std::string_view::npos ? std::string_view() : rest.substr(colon + 1);
    if (access(candidate.c_str(), X_OK) == 0 && !fs::equivalent(candidate, self, error))
      return candidate;
  }
  return {};
}

/// Is the home screen the one process that is named? Options, as `-9`, do not matter.
bool means_home_screen(int count, char** arguments) {
  int named = 0;
  for (int i = 1; i < count; ++i) {
    const std::string_view argument = arguments[i];
    if (argument.starts_with('-')) continue;
    if (argument != "SpringBoard") return false;
    ++named;
  }
  return named > 0;
}

}  // namespace

int main(int count, char** arguments) {
  const char* socket = std::getenv(host::launcher::kControlSocketVariable);
  if (socket && means_home_screen(count, arguments)) {
    if (host::launcher::ask_supervisor(socket, {})) return 0;
    std::fputs("SpringBoard: no process found\n", stderr);
    return 1;
  }
  const fs::path program = machines_own();
  if (!program.empty()) execv(program.c_str(), arguments);
  std::fputs("killall: not found\n", stderr);
  return 127;
}
