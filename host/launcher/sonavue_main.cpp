#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "host/launcher/installation.h"
#include "host/launcher/options.h"
#include "host/launcher/supervisor.h"
#include "host/launcher/throwaway_folder.h"
#include "host/runtime/log.h"

namespace {

using namespace host::launcher;

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

/// Empty when the options name a script that cannot be read.
std::optional<ConsoleFront> console_for(const Options& options) {
  Script script;
  if (!options.script.empty()) {
    auto read = read_script(options.script);
    if (!read) return std::nullopt;
    script = std::move(*read);
  }
  return ConsoleFront(script, options.console ? STDIN_FILENO : -1, stdout, stderr);
}

/// Returns the reason when the device cannot be started.
std::optional<std::string> prepare(const Options& options, const Installation& installation) {
  std::optional<std::string> reason;
  if (options.is_set_up) reason = copy_first_files(installation.first_files, options.root);
  if (!reason) reason = prepare_device_root(options.root);
  if (!reason) reason = stage(installation.staging, options.root, options.without);
  return reason;
}

int run_phone(Options options) {
  std::optional<ThrowawayFolder> device;
  if (options.root.empty()) options.root = device.emplace().path();
  const Installation installation = find_installation();
  if (const auto reason = prepare(options, installation)) return complain(*reason);
  const host::RealClock clock;
  const std::pair<std::string, std::string> path{"PATH", path_with(installation.tools)};
  const Supervisor::Commands commands{
      {installation.home_screen, home_screen_arguments(options), {path}},
      {{}, application_arguments(options), {path}},
      !options.headless};
  if (!options.console && options.script.empty()) return Supervisor(commands, clock, nullptr).run();
  auto front = console_for(options);
  if (!front) return complain(options.script.string() + " cannot be read");
  return Supervisor(commands, clock, &*front).run();
}

}  // namespace

int main(int count, char** arguments) try {
  host::start_log("sonavue");
  const auto read = read_options(count, arguments);
  if (const auto* ending = std::get_if<Ending>(&read)) {
    std::fputs(ending->text.c_str(), ending->status == 0 ? stdout : stderr);
    return ending->status;
  }
  const auto& options = std::get<Options>(read);
  if (!options.headless && !has_display()) {
    return complain(
        "there is no display for a window. Start it on a desktop, or without a window: "
        "--headless --console, then `screenshot FILE.png`.");
  }
  return run_phone(options);
} catch (const std::exception& failure) {
  return complain(failure.what());
}
