#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "host/launcher/control_socket.h"

// Comes first on the PATH of the device's processes. `killall SpringBoard` restarts this device's
// home screen and affects no other process of that name on the machine; any other call goes to the
// system's killall.

namespace {

namespace fs = std::filesystem;

/// The first `killall` on the PATH that is not this program.
fs::path system_killall() {
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

/// Returns whether only the home screen is named. Options such as `-9` are ignored.
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
  const fs::path program = system_killall();
  if (!program.empty()) execv(program.c_str(), arguments);
  std::fputs("killall: not found\n", stderr);
  return 127;
}
