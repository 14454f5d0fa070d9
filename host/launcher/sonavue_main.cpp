#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "host/launcher/installation.h"
#include "host/launcher/log_file.h"
#include "host/launcher/options.h"
#include "host/launcher/supervisor.h"
#include "host/launcher/throwaway_folder.h"
#include "host/runtime/log.h"

namespace {

using namespace host::launcher;

// How long another process may take between taking a device's root and introducing itself.
constexpr int kMostNaps = 100;
constexpr int kNapMilliseconds = 20;

int complain(const std::string& reason) {
  std::fprintf(stderr, "sonavue: %s\n", reason.c_str());
  return kBadUsage;
}

std::string path_with(const std::filesystem::path& tools) {
  const char* path = std::getenv("PATH");
  return tools.string() + ":" + (path ? path : "/usr/bin:/bin");
}

bool has_display() {
  return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY") || std::getenv("SDL_VIDEODRIVER");
}

/// Empty, with the reason in `problem`, when the options name a script that cannot be read.
std::optional<ConsoleFront> console_for(const Options& options, std::string& problem) {
  Script script;
  if (!options.script.empty()) {
    auto read = read_script(options.script, Pipes::Allowed, problem);
    if (!read) return std::nullopt;
    script = std::move(*read);
  }
  return ConsoleFront(script, options.console ? STDIN_FILENO : -1, stdout, stderr);
}

/// Returns the reason when the device cannot be started.
std::optional<std::string> prepare(const Options& options, const Installation& installation,
                                   host::files::Durability durability) {
  std::optional<std::string> reason;
  if (options.is_set_up) reason = copy_first_files(installation.first_files, options.root);
  if (!reason) reason = prepare_device_root(options.root);
  if (!reason) reason = stage(installation.staging, options.root, options.without, durability);
  return reason;
}

/// The owner of a device's root, which may be about to introduce itself.
FolderOwner wait_for_owner(const std::filesystem::path& root) {
  for (int nap = 0; nap < kMostNaps; ++nap) {
    if (auto owner = owner_of(root)) return std::move(*owner);
    poll(nullptr, 0, kNapMilliseconds);
  }
  return {};
}

/// Shows the window of the phone that already has this root, or says who has it.
int meet_running_phone(const Options& options) {
  const FolderOwner owner = wait_for_owner(options.root);
  const bool wants_window = !options.headless && !options.console && options.script.empty();
  const bool is_shown = wants_window && !owner.control_socket.empty() &&
                        ask_supervisor(owner.control_socket, {ControlRequest::Kind::Show, {}, {}});
  std::fprintf(stderr, "sonavue: %s is already in use by process %d%s\n", options.root.c_str(),
               owner.process, is_shown ? ", whose window is in front now" : "");
  return is_shown ? 0 : kInUse;
}

int run_phone(Options options) {
  remove_abandoned_folders();
  std::optional<ThrowawayFolder> device;
  if (options.root.empty()) options.root = device.emplace(temporary_folders()).path();
  if (options.root.empty()) return complain("no temporary folder can be made for a new device");
  FolderLock lock;
  bool has_owner = false;
  if (!device) {
    if (const auto reason = take_device_root(options.root, lock, has_owner))
      return complain(*reason);
    if (has_owner) return meet_running_phone(options);
  }
  std::string problem;
  auto front = console_for(options, problem);
  if (!front) return complain(problem);
  const Installation installation = find_installation();
  const host::RealClock clock;
  const std::pair<std::string, std::string> path{"PATH", path_with(installation.tools)};
  Supervisor supervisor({{installation.home_screen, home_screen_arguments(options), {path}},
                         {{}, application_arguments(options), {path}},
                         !options.headless},
                        clock, options.console || !options.script.empty() ? &*front : nullptr);
  if (!device) lock.introduce(supervisor.control_socket());
  const auto durability =
      device ? host::files::Durability::kUnflushed : host::files::Durability::kFlushed;
  if (const auto reason = prepare(options, installation, durability)) return complain(*reason);
  return supervisor.run();
}

}  // namespace

int main(int count, char** arguments) try {
  open_standard_streams();
  host::start_log("sonavue");
  const auto read = read_options(count, arguments);
  if (const auto* ending = std::get_if<Ending>(&read)) {
    std::fputs(ending->text.c_str(), ending->status == 0 ? stdout : stderr);
    return ending->status;
  }
  const auto& options = std::get<Options>(read);
  if (!options.headless) log_to_file_unless_seen();
  if (!options.headless && !has_display()) {
    return complain(
        "there is no display for a window. Start it on a desktop, or without a window: "
        "--headless --console, then `screenshot FILE.png`.");
  }
  return run_phone(options);
} catch (const std::exception& failure) {
  return complain(failure.what());
}
