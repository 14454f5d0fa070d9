#include "host/home_screen/supervised_processes.h"

#include <cstdlib>

#include "host/launcher/control_socket.h"
#include "host/launcher/unix_socket.h"

namespace host::launcher {

SupervisedProcesses::SupervisedProcesses() {
  if (const char* path = std::getenv(kControlSocketVariable)) control_ = path;
}

bool SupervisedProcesses::open(const std::string& bundle, const std::string& program) {
  return !control_.empty() &&
         ask_supervisor(control_, {ControlRequest::Kind::Open, bundle, program});
}

void SupervisedProcesses::close(const std::string& bundle) {
  if (!control_.empty()) ask_supervisor(control_, {ControlRequest::Kind::Close, bundle, {}});
}

application::Channel SupervisedProcesses::connect(const std::string& bundle) {
  return application::Channel(connected_socket(application_socket(control_.parent_path(), bundle)));
}

}  // namespace host::launcher
