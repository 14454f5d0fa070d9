#include <cstdio>
#include <cstdlib>

#include "host/launcher/control_socket.h"
#include "host/launcher/killall_call.h"

// Comes first on the PATH of the device's processes, and knows only these: a name that the machine
// has, too, reaches no process outside of the device.

namespace {

using namespace host::launcher;

bool is_done(const KillallCall& call, const std::string& name) {
  const char* socket = std::getenv(kControlSocketVariable);
  const auto kind = call.only_looks ? ControlRequest::Kind::Find : ControlRequest::Kind::Kill;
  return socket && ask_supervisor(socket, {kind, {}, name});
}

}  // namespace

int main(int count, char** arguments) {
  std::string problem;
  const auto call = read_killall_call({arguments + 1, arguments + count}, problem);
  if (!call) {
    std::fprintf(stderr, "killall: %s\n", problem.c_str());
    return 1;
  }
  int status = 0;
  for (const std::string& name : call->names) {
    if (is_done(*call, name)) continue;
    status = 1;
    if (!call->is_quiet) std::fprintf(stderr, "%s: no process found\n", name.c_str());
  }
  return status;
}
