#include "host/applications/program/program.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <optional>
#include <vector>

#include "host/application/wire/process_arguments.h"
#include "host/applications/program/running_program.h"
#include "host/foundation/bundles.h"
#include "host/foundation/crash_report.h"
#include "host/foundation/device_paths.h"
#include "host/foundation/foundation_log.h"
#include "host/foundation/loader.h"
#include "host/process/device_images.h"
#include "host/process/library_globals.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/device_model.h"
#include "host/runtime/heap.h"
#include "host/runtime/log.h"
#include "host/uikit/application/application.h"
#include "objc/autorelease_pool.h"

namespace host::application {
namespace {

constexpr int kCannotStart = 2;

/// The options from the supervisor, which are trusted.
struct Options {
  std::string device;
  std::string root;
  int listener = -1;
  std::vector<std::filesystem::path> extensions;  // that are not installed
  bool safe_mode = false;                         // no extensions
};

std::optional<Options> read_options(int count, const char* const* arguments) {
  Options options;
  CLI::App parser;
  parser.add_option("--device", options.device)->required();
  parser.add_option("--root", options.root)->required();
  parser.add_option(kListenerArgument, options.listener)->required();
  parser.add_option(kExtensionArgument, options.extensions)->allow_extra_args(false);
  parser.add_flag(kSafeModeArgument, options.safe_mode);
  try {
    parser.parse(count, arguments);
  } catch (const CLI::ParseError&) {
    return std::nullopt;
  }
  if (!device_model(options.device)) return std::nullopt;
  return options;
}

/// The first home screen decides whether the clock here is real or stepped.
Hello wait_for_home(HomeLink& link) {
  for (;;) {
    link.wait();
    while (auto message = link.next()) {
      if (const auto* hello = std::get_if<Hello>(&*message)) return *hello;
    }
  }
}

void live(HomeLink& link, const Program& program, const Options& options) {
  const Hello hello = wait_for_home(link);
  SteppedClock stepped;
  RealClock real;
  RunLoop loop(hello.is_stepped ? static_cast<Clock&>(stepped) : real);
  RunLoop::set_main(&loop);
  const auto pool = std::make_unique<objc::AutoreleasePool>();
  process::start_program(program.images);
  foundation::set_main_bundle(program.folder);
  foundation::take_foundation_log();
  const quartzcore::LayerService layers(loop);
  if (program.export_classes) program.export_classes();
  if (!options.safe_mode)
    foundation::load_libraries(program.bundle, program.name, options.extensions);
  if (program.prepare) program.prepare(hello.is_stepped);
  uikit::launch_application(program.application_class);
  const console::Globals globals = process::globals_of_libraries();
  RunningProgram running(link, loop, hello.is_stepped ? &stepped : nullptr, globals);
  running.take(hello);
  running.serve();
}

}  // namespace

int run_program(int count, char** arguments, const Program& program) {
  start_log(program.name);
  give_large_blocks_back();
  const auto options = read_options(count, arguments);
  if (!options) {
    spdlog::error("{} can only be started by sonavue", program.name);
    return kCannotStart;
  }
  foundation::report_crashes(program.name);
  set_current_device(*device_model(options->device));
  foundation::set_device_root(options->root);
  close_on_exec(options->listener);
  HomeLink link{Descriptor(options->listener)};
  live(link, program, *options);
  return 0;
}

}  // namespace host::application
