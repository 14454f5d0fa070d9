#include "host/home_screen/process_options.h"

#include <CLI/CLI.hpp>

#include "host/application/wire/process_arguments.h"
#include "host/basics/ascii.h"
#include "host/launcher/browser_door.h"
#include "host/launcher/supervisor.h"
#include "host/runtime/device_model.h"

namespace host::launcher {

std::optional<ProcessOptions> read_process_options(int count, const char* const* arguments) {
  ProcessOptions options;
  CLI::App parser;
  parser.add_option("--device", options.device)->required();
  parser.add_option("--root", options.root)->required();
  parser.add_option("--music", options.music)->allow_extra_args(false);
  parser.add_option("--screenshots", options.screenshots)->required();
  parser.add_flag("--headless", options.headless);
  parser.add_flag("--blind", options.blind);
  parser.add_flag("--stepped", options.stepped);
  parser.add_flag("--desktop", options.desktop);
  parser.add_option(application::kExtensionArgument, options.extensions)->allow_extra_args(false);
  parser.add_flag(application::kSafeModeArgument, options.safe_mode);
  parser.add_option(kConsoleArgument, options.console_descriptor);
  parser.add_option(kLifelineArgument, options.lifeline_descriptor);
  parser.add_option(kBrowserArgument, options.browser_descriptor);
  parser.add_option(kAccessArgument, options.access_descriptor);
  try {
    parser.parse(count, arguments);
  } catch (const CLI::ParseError&) {
    return std::nullopt;
  }
  options.screenshots = bytes_of_ascii(options.screenshots.native());
  for (std::filesystem::path& folder : options.music)
    folder = bytes_of_ascii(folder.native());
  if (!device_model(options.device)) return std::nullopt;
  return options;
}

}  // namespace host::launcher
