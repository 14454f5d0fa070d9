#include "host/launcher/running_applications.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "host/application/wire/process_arguments.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/unix_socket.h"
#include "host/runtime/log.h"

namespace host::launcher {

namespace fs = std::filesystem;

namespace {

/// Logs the reason, which is the latest error of the system.
bool cannot_start(const std::string& program, const fs::path& what) {
  const std::error_code reason(errno, std::generic_category());
  spdlog::error("{} cannot be started: {}: {}", program, what.string(), reason.message());
  return false;
}

}  // namespace

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
  if (access(command.program.c_str(), X_OK) != 0) return cannot_start(program, command.program);
  forget_socket(bundle);
  const Descriptor listener = listening_socket(socket_of(bundle));
  if (!listener) return cannot_start(program, socket_of(bundle));
  if (is_safe_) command.arguments.emplace_back(application::kSafeModeArgument);
  command.arguments.emplace_back(application::kListenerArgument);
  command.arguments.push_back(std::to_string(listener.get()));
  const auto child = start_child(command, std::array{listener.get()});
  if (!child) return cannot_start(program, command.program);
  running_[bundle] = {*child, program};
  return true;
}

bool RunningApplications::close(const std::string& bundle) {
  const auto found = running_.find(bundle);
  if (found == running_.end()) return true;
  ::kill(found->second.process, SIGKILL);
  waitpid(found->second.process, nullptr, 0);
  forget_socket(bundle);
  running_.erase(found);
  return true;
}

bool RunningApplications::kill(const std::string& program) {
  bool any = false;
  for (auto each = running_.begin(); each != running_.end();) {
    const auto one = each++;
    if (one->second.program == program) any |= close(std::string(one->first));
  }
  return any;
}

void RunningApplications::reap() {
  for (auto each = running_.begin(); each != running_.end();) {
    int status = 0;
    if (waitpid(each->second.process, &status, WNOHANG) != each->second.process) {
      ++each;
      continue;
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) == kCannotRun)
      spdlog::error("{} cannot be run: the file is not a program of this machine",
                    (places_.programs / each->second.program).string());
    forget_socket(each->first);
    each = running_.erase(each);
  }
}

bool RunningApplications::is_program_running(const std::string& program) const {
  return std::any_of(running_.begin(), running_.end(),
                     [&program](const auto& one) { return one.second.program == program; });
}

pid_t RunningApplications::process(const std::string& bundle) const {
  const auto found = running_.find(bundle);
  return found == running_.end() ? 0 : found->second.process;
}

}  // namespace host::launcher
