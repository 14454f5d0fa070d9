#include <cstdio>
#include <functional>
#include <memory>

#include "host/application/wire/process_arguments.h"
#include "host/basics/ascii.h"
#include "host/class_headers/framework_headers.h"
#include "host/console/globals.h"
#include "host/foundation/crash_report.h"
#include "host/foundation/device_paths.h"
#include "host/home_screen/console_phone.h"
#include "host/home_screen/console_service.h"
#include "host/home_screen/desktop_link.h"
#include "host/home_screen/display.h"
#include "host/home_screen/launch.h"
#include "host/home_screen/lifeline.h"
#include "host/home_screen/music.h"
#include "host/home_screen/page_views.h"
#include "host/home_screen/passing_time.h"
#include "host/home_screen/process_options.h"
#include "host/home_screen/window_input.h"
#include "host/launcher/supervisor.h"
#include "host/process/library_globals.h"
#include "host/process/phone_screen.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/device_model.h"
#include "host/runtime/log.h"
#include "host/springboard/system/system_actions.h"
#include "objc/autorelease_pool.h"

namespace {

using namespace host;
using launcher::ProcessOptions;

/// The process's clock, advanced by either the machine or the console.
class ProcessClock {
 public:
  explicit ProcessClock(bool stepped) {
    if (stepped) stepped_.emplace();
  }
  Clock& clock() { return stepped_ ? static_cast<Clock&>(*stepped_) : real_; }
  void advance(RunLoop& loop, double seconds) {
    if (stepped_) {
      loop.advance_to(*stepped_, stepped_->now() + seconds);
    } else {
      launcher::let_time_pass(loop, seconds);
    }
  }

 private:
  RealClock real_;
  std::optional<SteppedClock> stepped_;
};

int switch_off(const launcher::Lifeline& lifeline) {
  lifeline.say(launcher::LifeSign::SwitchedOff);
  launcher::stop_music();
  return 0;
}

int run(const ProcessOptions& options) {
  ProcessClock clock(options.stepped);
  RunLoop loop(clock.clock());
  RunLoop::set_main(&loop);
  foundation::set_device_root(options.root);
  set_current_device(*device_model(options.device));

  const auto pool = std::make_unique<objc::AutoreleasePool>();
  const quartzcore::LayerService layers(loop);
  const DeviceModel& device = current_device();
  launcher::Lifeline lifeline(loop, options.lifeline_descriptor);
  close_on_exec(options.console_descriptor);
  launcher::Hands bare_hands(loop, {device.width, device.height});
  launcher::RecordedHands hands(
      bare_hands, loop,
      options.stepped ? recording::Fidelity::exact() : recording::Fidelity::by_hand());
  launcher::WindowInput input(hands, [&loop] { loop.stop(); });
  const auto display = launcher::Display::open(options, loop, input);
  if (!display) {
    lifeline.say(launcher::LifeSign::CannotStart);
    return launcher::kCannotStart;
  }
  process::PhoneScreen phone_screen(loop, display->screen());
  const bool is_launched = launcher::launch_home_screen(options);
  phone_screen.on_rescale(&springboard::adopt_screen_density);
  display->set_awake(true);
  if (!is_launched) return switch_off(lifeline);

  launcher::ConsolePhone phone(
      hands,
      {[&](double seconds) { clock.advance(loop, seconds); },
       [&](const auto& use) { return phone_screen.with_picture(use); }, options.screenshots});
  const console::Globals globals = process::globals_of_libraries();
  console::Session session(phone, globals);
  std::optional<launcher::ConsoleService> service;
  if (options.console_descriptor >= 0)
    service.emplace(loop, options.console_descriptor, session, [&loop] { loop.stop(); });
  lifeline.begin({[&display] { display->raise(); }, &launcher::play_handed_files});
  // Stepped time passes only between two questions, so it says nothing about the loop.
  if (!options.stepped) lifeline.answer_questions();
  const launcher::PageViews page_views(display->page());
  auto desktop = options.desktop ? launcher::DesktopLink::begin(loop, *display) : nullptr;
  launcher::play_handed_files();
  loop.run();
  desktop.reset();
  return switch_off(lifeline);
}

/// For who writes extensions: no home screen, only the headers of its classes.
int write_headers(const char* folder) {
  ProcessClock clock(true);
  RunLoop loop(clock.clock());
  RunLoop::set_main(&loop);
  const objc::AutoreleasePool pool;
  const std::string problem = class_headers::write_headers(bytes_of_ascii(folder));
  if (problem.empty()) return 0;
  std::fprintf(stderr, "sonavue: the headers cannot be written: %s\n", problem.c_str());
  return launcher::kCannotStart;
}

}  // namespace

int main(int count, char** arguments) {
  start_log(launcher::kHomeScreen);
  if (count == 3 && std::string_view(arguments[1]) == application::kHeadersArgument)
    return write_headers(arguments[2]);
  const auto options = launcher::read_process_options(count, arguments);
  if (!options) {
    std::fputs("SpringBoard must be started by sonavue.\n", stderr);
    return launcher::kCannotStart;
  }
  foundation::report_crashes(launcher::kHomeScreen);
  return run(*options);
}
