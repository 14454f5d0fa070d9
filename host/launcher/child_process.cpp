#include "host/launcher/child_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <string_view>

namespace host::launcher {
namespace {

std::vector<std::string> merged_environment(const ChildCommand& command) {
  std::vector<std::string> made;
  for (char** entry = environ; *entry; ++entry) {
    const std::string_view text = *entry;
    const auto name = text.substr(0, text.find('='));
    const bool replaced = std::any_of(command.environment.begin(), command.environment.end(),
                                      [name](const auto& own) { return own.first == name; });
    if (!replaced) made.emplace_back(text);
  }
  for (const auto& [name, value] : command.environment)
    made.emplace_back(name).append("=").append(value);
  return made;
}

std::vector<char*> pointers_to(std::vector<std::string>& texts) {
  std::vector<char*> made;
  made.reserve(texts.size() + 1);
  for (std::string& text : texts)
    made.push_back(text.data());
  made.push_back(nullptr);
  return made;
}

}  // namespace

std::optional<pid_t> start_child(const ChildCommand& command, std::span<const int> kept) {
  // Everything is prepared before the fork: between fork and exec hardly anything is allowed.
  std::vector<std::string> arguments = {command.program.filename().string()};
  arguments.insert(arguments.end(), command.arguments.begin(), command.arguments.end());
  std::vector<std::string> environment = merged_environment(command);
  const std::vector<char*> argument_pointers = pointers_to(arguments);
  const std::vector<char*> environment_pointers = pointers_to(environment);
  const pid_t parent = getpid();

  const pid_t child = fork();
  if (child < 0) return std::nullopt;
  if (child > 0) return child;

  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(kCannotRun);  // the parent ended before the request was made
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  for (const int descriptor : kept)
    if (descriptor >= 0) fcntl(descriptor, F_SETFD, 0);
  execve(command.program.c_str(), argument_pointers.data(), environment_pointers.data());
  _exit(kCannotRun);
}

bool is_traced(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    if (word == "TracerPid:") return status >> word && word != "0";
  }
  return false;
}

}  // namespace host::launcher
