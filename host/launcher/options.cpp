#include "host/launcher/options.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <optional>

#include "host/application/wire/process_arguments.h"
#include "host/basics/ascii.h"
#include "host/basics/utf8.h"
#include "host/launcher/library_file.h"
#include "host/media/playable_path.h"
#include "host/runtime/device_model.h"
#include "host/runtime/log_line.h"
#include "host/screen/key_list.h"

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDescription =
    "Sonavue on the desktop: a home screen to use with a mouse, a finger or a key.";

constexpr const char* kNotes =
    "Buttons are down as long as their key: hold F1 or F3, or F5 and F6 together.\n"
    "\n"
    "Files and folders that are dropped on the window are played, too. What is not in\n"
    "the folders of music is listed until the phone is switched off.\n"
    "\n"
    "A device runs once: a second start shows the window of the first, and hands its\n"
    "files to it.\n"
    "\n"
    "Exit status\n"
    "  0    the phone was switched off, or the window of a running one is in front, or\n"
    "       that one plays the files\n"
    "  1    a line of the script failed\n"
    "  2    it could not be started; standard error says why\n"
    "  3    the home screen kept ending, even without extensions\n"
    "  4    another process has the device, and no window to show\n"
    "  128+ ended by the signal of that number\n"
    "\n"
    "Messages are printed on standard error. If that is neither a terminal nor a pipe\n"
    "nor a file, as for a phone started from a menu, they go to the file\n"
    "~/.local/state/sonavue/sonavue.log; the one before it ends in .1.\n"
    "\n"
    "SONAVUE_PATIENCE=0 in the environment waits for ever for a home screen or an\n"
    "extension that hangs; any other number multiplies the time until it is ended.";

/// The keys and the mouse in the window.
std::string key_list() {
  std::string text;
  for (const screen::KeyGroup& group : screen::kKeyGroups) {
    text += fmt::format("{}\n", group.title);
    for (const screen::KeyRow& row : group) {
      const bool has_mouse = *row.mouse != '\0';
      text +=
          fmt::format("  {:<22} {}{}{}\n", row.keys, row.does, has_mouse ? ", or " : "", row.mouse);
    }
    text += "\n";
  }
  return text;
}

std::string check_device(const std::string& identifier) {
  if (device_model(identifier)) return {};
  std::string known;
  for (const DeviceModel& model : device_models()) {
    if (!known.empty()) known += ", ";
    known += model.identifier;
  }
  return "unknown device " + identifier + "; known devices are " + known;
}

std::string all_devices() {
  std::string names;
  for (const DeviceModel& model : device_models()) {
    if (!names.empty()) names += ", ";
    names += model.identifier;
    if (model.identifier == kDefaultDevice) names += " (default)";
  }
  return names;
}

std::string check_music(const std::string& folder) {
  std::error_code error;
  if (fs::is_directory(folder, error)) return {};
  return folder + " is not a folder of music";
}

std::string check_script(const std::string& file) {
  std::error_code error;
  if (fs::is_regular_file(file, error) || fs::is_fifo(file, error)) return {};
  return file + " is not a script";
}

std::string check_report(const std::string& file) {
  std::error_code error;
  const fs::path folder = fs::path(file).parent_path();
  if (!folder.empty() && !fs::is_directory(folder, error))
    return file + " cannot be written: " + folder.string() + " is not a folder";
  return fs::is_directory(file, error) ? file + " is a folder" : std::string();
}

std::string check_extension(const std::string& file) {
  const std::string reason = reason_not_to_load(file);
  return reason.empty() ? reason : on_one_line(file + reason);
}

fs::path made_absolute(const fs::path& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  const auto made = error ? path : fs::weakly_canonical(absolute, error);
  return error ? path : made;
}

/// Keeps the files that can be played, and says why the others cannot.
void check_files(Options& options) {
  std::erase_if(options.files, [&options](std::string& file) {
    const std::string reason = media::reason_not_to_play(file);
    if (!reason.empty()) options.refusals.push_back(on_one_line(file + " " + reason));
    file = media::settled_path(file);
    return !reason.empty();
  });
}

void make_absolute(Options& options) {
  if (!options.root.empty()) options.root = made_absolute(options.root);
  options.screenshots = made_absolute(options.screenshots);
  if (!options.headers.empty()) options.headers = made_absolute(options.headers);
  if (!options.report.empty()) options.report = made_absolute(options.report);
  for (auto* paths : {&options.music, &options.scripts, &options.extensions}) {
    for (fs::path& path : *paths)
      path = made_absolute(path);
  }
}

void add_options(CLI::App& parser, Options& options, bool& new_phone) {
  parser.footer(key_list() + kNotes);
  parser.set_version_flag("--version", "sonavue " SONAVUE_VERSION);
  parser.add_option("--device", options.device, "The phone or tablet to show: " + all_devices())
      ->check(check_device);
  auto* root = parser.add_option("--root", options.root,
                                 "Folder that holds the device's own files; a script without it "
                                 "plays on a new device that is deleted afterwards");
  parser
      .add_flag("--new-phone", new_phone,
                "An untouched device, which asks for its settings itself and is deleted "
                "afterwards; without it a new device is already set up")
      ->excludes(root);
  parser.add_option("--music", options.music, "Folder of music; may be given more than once")
      ->check(check_music)
      ->allow_extra_args(false);
  parser.add_option("FILE", options.files,
                    "Music to play, files and folders, one after another; a phone that runs "
                    "already plays it");
  parser.add_option("--without", options.without, "Identifier of an application to leave out")
      ->allow_extra_args(false);
  parser
      .add_option("--extension", options.extensions,
                  "Library to try without installing it, in the processes that the property list "
                  "beside it names, or in the home screen; may be given more than once")
      ->check(check_extension)
      ->allow_extra_args(false);
  parser.add_option("--headers", options.headers,
                    "Write Objective-C headers of the phone's classes to this folder, for "
                    "extensions; starts no phone");
  auto* headless = parser.add_flag("--headless", options.headless, "No window");
  parser
      .add_flag("--browser", options.browser,
                "A page in a browser of this machine instead of a window; without a display, "
                "this is how the phone is shown")
      ->excludes(headless);
  parser.add_flag("--blind", options.blind,
                  "With --headless: draw nothing but screenshots, so that hours pass in minutes");
  parser.add_flag("--console", options.console, "Read commands on standard input");
  auto* script = parser
                     .add_option("--script", options.scripts,
                                 "Run a file of commands, then end; may be given more than once: "
                                 "each file gets a phone that is started for it")
                     ->check(check_script)
                     ->allow_extra_args(false);
  parser
      .add_option("--junit", options.report,
                  "With --script: write what passed and failed to this file, for a build server")
      ->check(check_report)
      ->needs(script);
  parser.add_flag("--desktop", options.desktop,
                  "With --headless: take part in the desktop's session like a phone with a window: "
                  "media keys, players' controls, no sleep while music plays");
  parser.add_option("--screenshots", options.screenshots, "Folder for screenshots");
}

/// What cannot be started, and why: the console does not go with it, nothing of what was named can
/// be played, or Foundation would not find the device's files, which it looks up by names in UTF-8.
std::optional<Ending> reason_not_to_start(const Options& options) {
  if (options.console && (options.scripts.size() > 1 || !options.report.empty()))
    return Ending{kBadUsage, "sonavue: --console takes one --script, and no --junit\n"};
  std::string text;
  for (const std::string& refusal : options.refusals)
    text += "sonavue: " + refusal + "\n";
  if (options.files.empty() && !text.empty()) return Ending{kBadUsage, text};
  if (utf8::is_valid(options.root.native())) return std::nullopt;
  return Ending{kBadUsage, "sonavue: the device's folder " + ascii_of(options.root.native()) +
                               " is not valid UTF-8; --root names another\n"};
}

}  // namespace

std::variant<Options, Ending> read_options(int count, const char* const* arguments) {
  Options options;
  options.device = kDefaultDevice;
  options.screenshots = ".";

  CLI::App parser(kDescription, "sonavue");
  bool new_phone = false;
  add_options(parser, options, new_phone);
  try {
    parser.parse(count, arguments);
  } catch (const CLI::CallForHelp&) {
    return Ending{0, parser.help()};
  } catch (const CLI::CallForVersion&) {
    return Ending{0, parser.version() + "\n"};
  } catch (const CLI::ParseError& error) {
    return Ending{kBadUsage, std::string("sonavue: ") + error.what() + "\n"};
  }
  options.is_set_up = options.root.empty() && options.scripts.empty() && !new_phone;
  if (options.is_set_up) options.root = default_device_root();
  make_absolute(options);
  check_files(options);
  if (auto reason = reason_not_to_start(options)) return *reason;
  return options;
}

namespace {

void add_extensions(std::vector<std::string>& arguments, const Options& options) {
  for (const fs::path& extension : options.extensions) {
    arguments.emplace_back(application::kExtensionArgument);
    arguments.push_back(extension);
  }
}

}  // namespace

fs::path default_device_root() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && *data == '/') return fs::path(data) / "sonavue/device";
  const char* home = std::getenv("HOME");
  return fs::path(home ? home : "/") / ".local/share/sonavue/device";
}

std::vector<std::string> home_screen_arguments(const Options& options) {
  std::vector<std::string> made = {"--device",      options.device,
                                   "--root",        options.root,
                                   "--screenshots", ascii_of(options.screenshots.native())};
  for (const fs::path& folder : options.music) {
    made.push_back("--music");
    made.push_back(ascii_of(folder.native()));
  }
  add_extensions(made, options);
  if (!options.has_window()) made.push_back("--headless");
  if (options.headless && options.blind) made.push_back("--blind");
  if (options.has_stepped_clock()) made.push_back("--stepped");
  if (options.takes_part_in_desktop()) made.push_back("--desktop");
  return made;
}

std::vector<std::string> application_arguments(const Options& options) {
  std::vector<std::string> made = {"--device", options.device, "--root", options.root};
  add_extensions(made, options);
  return made;
}

}  // namespace host::launcher
