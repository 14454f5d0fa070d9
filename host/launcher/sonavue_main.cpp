#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

#include "host/application/wire/process_arguments.h"
#include "host/basics/ascii.h"
#include "host/files/replace_file.h"
#include "host/launcher/environment.h"
#include "host/launcher/handed_files.h"
#include "host/launcher/installation.h"
#include "host/launcher/log_file.h"
#include "host/launcher/options.h"
#include "host/launcher/supervisor.h"
#include "host/launcher/test_report.h"
#include "host/launcher/throwaway_folder.h"
#include "host/runtime/log.h"

namespace {

using namespace host::launcher;

// How long another process may take between taking a device's root and introducing itself.
constexpr int kMostNaps = 100;
constexpr int kNapMilliseconds = 20;

// A status above it is that of a phone that a signal has ended, and the user with it.
constexpr int kSignalled = 128;

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

bool has_console(const Options& options) {
  return options.console || !options.scripts.empty();
}

/// Empty, with the reason in `problem`, when the options name a script that cannot be read.
std::optional<ConsoleFront> console_for(const Options& options, std::string& problem) {
  std::optional<Script> script = Script{};
  if (!options.scripts.empty())
    script = read_script(options.scripts.front(), Pipes::Allowed, problem);
  if (!script) return std::nullopt;
  return ConsoleFront(*script, options.console ? STDIN_FILENO : -1, stdout, stderr);
}

/// Returns the reason when the device cannot be started.
std::optional<std::string> prepare(const Options& options, const Installation& installation) {
  std::optional<std::string> reason;
  if (options.is_set_up) reason = copy_first_files(installation.first_files, options.root);
  if (!reason) reason = prepare_device_root(options.root);
  if (!reason) reason = stage(installation.staging, options.root, options.without);
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

/// Hands the files to the phone of `owner`, and shows its window if it has one.
bool hand_files(const Options& options, const FolderOwner& owner) {
  const auto& socket = owner.control_socket;
  if (!hand_over(socket.parent_path(), options.files) ||
      !ask_supervisor(socket, {ControlRequest::Kind::Play, {}, {}}))
    return false;
  ask_supervisor(socket, {ControlRequest::Kind::Show, {}, {}});
  return true;
}

/// Shows the window of the phone that already has this root, and hands it the files, or says who
/// has it.
int meet_running_phone(const Options& options) {
  const FolderOwner owner = wait_for_owner(options.root);
  if (!options.files.empty() && !has_console(options) && !owner.control_socket.empty() &&
      hand_files(options, owner)) {
    std::fprintf(stderr, "sonavue: the phone of process %d plays the music\n", owner.process);
    return 0;
  }
  const std::string name = owner.process ? std::to_string(owner.process) : "that is starting";
  if (!options.extensions.empty()) {
    std::fprintf(stderr,
                 "sonavue: %s is in use by process %s, and extensions are loaded when a phone "
                 "starts: switch that one off first\n",
                 options.root.c_str(), name.c_str());
    return kInUse;
  }
  const bool is_shown = !options.headless && !has_console(options) &&
                        !owner.control_socket.empty() &&
                        ask_supervisor(owner.control_socket, {ControlRequest::Kind::Show, {}, {}});
  const char* const shown = options.browser ? ", which prints a new link or shows its window"
                                            : ", whose window is in front now";
  std::fprintf(stderr, "sonavue: %s is already in use by process %s%s\n", options.root.c_str(),
               name.c_str(), is_shown ? shown : "");
  return is_shown ? 0 : kInUse;
}

/// `lock` is nullptr for a root that no one else can know, `witness` when nothing is reported.
int supervise(const Options& options, const FolderLock* lock, ScriptWitness* witness) {
  std::string problem;
  auto front = console_for(options, problem);
  if (!front) return complain(problem);
  front->tell(witness);
  const Installation installation = find_installation();
  const host::RealClock clock;
  BrowserDoor page;
  if (options.browser) page = BrowserDoor::open(problem);
  if (!problem.empty()) return complain(problem);
  const std::string link = page ? page.link() : std::string();
  const std::pair<std::string, std::string> path{"PATH", path_with(installation.tools)};
  Supervisor supervisor({{installation.home_screen, home_screen_arguments(options), {path}},
                         {{}, application_arguments(options), {path}},
                         options.has_window(),
                         std::move(page)},
                        clock, has_console(options) ? &*front : nullptr);
  if (lock) lock->introduce(supervisor.control_socket());
  if (const auto reason = prepare(options, installation)) return complain(*reason);
  if (!link.empty()) say_link(link);
  if (!options.files.empty() &&
      !hand_over(supervisor.control_socket().parent_path(), options.files)) {
    std::fputs("sonavue: the music cannot be handed to the phone\n", stderr);
  }
  return supervisor.run();
}

int run_on_new_device(Options options, ScriptWitness* witness) {
  const ThrowawayFolder device;
  if (device.path().empty()) return complain("no temporary folder can be made for a new device");
  options.root = device.path();
  return supervise(options, nullptr, witness);
}

int run_phone(const Options& options, ScriptWitness* witness = nullptr) {
  remove_abandoned_folders();
  if (options.root.empty()) return run_on_new_device(options, witness);
  FolderLock lock;
  bool has_owner = false;
  if (const auto reason = take_device_root(options.root, lock, has_owner)) return complain(*reason);
  return has_owner ? meet_running_phone(options) : supervise(options, &lock, witness);
}

bool write_report(const TestReport& report, const std::string& file) {
  const auto failure = host::files::replace_file(file, report.xml()).error;
  if (failure) complain(file + " cannot be written: " + failure.message());
  return !failure;
}

/// Plays the scripts one after another. Returns the status of the first that failed.
int run_scripts(const Options& options) {
  const host::RealClock clock;
  TestReport report(clock);
  int first_failure = 0;
  for (const auto& script : options.scripts) {
    Options one = options;
    one.scripts = {script};
    report.begin(script);
    const int status = run_phone(one, &report);
    report.end(status);
    if (first_failure == 0) first_failure = status;
    if (!options.report.empty() && !write_report(report, options.report)) return kBadUsage;
    if (status > kSignalled) break;
  }
  return first_failure;
}

/// The home screen's program has the classes. Returns only on failure.
int write_headers(const std::filesystem::path& folder) {
  const auto program = find_installation().home_screen;
  const std::string ascii = host::ascii_of(folder.native());
  execl(program.c_str(), program.c_str(), host::application::kHeadersArgument, ascii.c_str(),
        nullptr);
  return complain(program.string() + " cannot be started: " + std::strerror(errno));
}

}  // namespace

int main(int count, char** arguments) try {
  open_standard_streams();
  host::start_log("sonavue");
  if (const auto reason = remove_unreadable_variables()) return complain(*reason);
  const auto read = read_options(count, arguments);
  if (const auto* ending = std::get_if<Ending>(&read)) {
    std::fputs(ending->text.c_str(), ending->status == 0 ? stdout : stderr);
    return ending->status;
  }
  auto options = *std::get_if<Options>(&read);
  if (!options.headers.empty()) return write_headers(options.headers);
  for (const std::string& refusal : options.refusals)
    complain(refusal);
  if (options.has_window()) log_to_file_unless_seen();
  options.browser |= !options.headless && !has_display();
  return options.scripts.empty() ? run_phone(options) : run_scripts(options);
} catch (const std::exception& failure) {
  return complain(failure.what());
}
