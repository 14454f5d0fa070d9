#include "host/launcher/running_applications.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>

#include "host/application/wire/listener_argument.h"
#include "host/launcher/unix_socket.h"

namespace host::launcher {

namespace fs = std::filesystem;

fs::path application_socket(const fs::path& folder, const std::string& bundle) {
  return folder / ("application-" + bundle);
}

RunningApplications::RunningApplications(Places places, ChildCommand common)
    : places_(std::move(places)), common_(std::move(common)) {}

RunningApplications::~RunningApplications() {
  while (!running_.empty())
    close(std::string(running_.begin()->first));
}

fs::path RunningApplications::socket_of(const std::string& bundle) const {
  return application_socket(places_.sockets, bundle);
}

void RunningApplications::forget_socket(const std::string& bundle) const {
  std::error_code ignored;
  fs::remove(socket_of(bundle), ignored);
}

bool RunningApplications::open(const std::string& bundle, const std::string& program) {
  reap();
  if (is_running(bundle)) return true;
  ChildCommand command = common_;
  command.program = places_.programs / program;
  if (access(command.program.c_str(), X_OK) != 0) return false;
  forget_socket(bundle);
  const Descriptor listener = listening_socket(socket_of(bundle));
  if (!listener) return false;
  command.arguments.emplace_back(application::kListenerArgument);
  command.arguments.push_back(std::to_string(listener.get()));
  const auto child = start_child(command, listener.get());
  if (child) running_[bundle] = *child;
  return child.has_value();
}

bool RunningApplications::close(const std::string& bundle) {
  const auto found = running_.find(bundle);
  if (found == running_.end()) return true;
  kill(found->second, SIGKILL);
  waitpid(found->second, nullptr, 0);
  forget_socket(bundle);
  running_.erase(found);
  return true;
}

void RunningApplications::reap() {
  for (auto each = running_.begin(); each != running_.end();) {
    if (waitpid(each->second, nullptr, WNOHANG) != each->second) {
      ++each;
      continue;
    }
    forget_socket(each->first);
    each = running_.erase(each);
  }
}

pid_t RunningApplications::process(const std::string& bundle) const {
  const auto found = running_.find(bundle);
  return found == running_.end() ? 0 : found->second;
}

}  // namespace host::launcher
