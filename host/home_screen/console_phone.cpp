#include "host/home_screen/console_phone.h"

#include <fmt/format.h>

#include "host/activator/service/phone_gestures.h"
#include "host/comparison/difference.h"
#include "host/home_screen/launch.h"
#include "host/springboard/system/system_actions.h"
#include "host/springboard/system/unrest.h"
#include "host/uikit/geometry/screen_space.h"

namespace host::launcher {
namespace {

using console::Refusal;
using console::SystemEvent;

// Keeps the console's fingers distinct from the window's.
constexpr int kConsoleFingers = 1000;

Refusal done_unless(bool done, std::string_view reason) {
  if (done) return std::nullopt;
  return std::string(reason);
}

/// The events that apply to an application.
Refusal application_event(SystemEvent event, std::string_view bundle) {
  using namespace springboard;
  switch (event) {
    case SystemEvent::Open:
      return done_unless(open(bundle), "this application cannot be opened");
    case SystemEvent::FolderIn:
      return done_unless(move_to_folder(bundle), "this application cannot be moved into a folder");
    case SystemEvent::FolderOut:
      return done_unless(move_out_of_folder(bundle), "this application is not in a folder");
    case SystemEvent::DockIn:
      return done_unless(move_to_dock(bundle), "this application cannot be moved into the dock");
    case SystemEvent::DockOut:
      return done_unless(move_out_of_dock(bundle), "this application is not in the dock");
    case SystemEvent::Kill:
      return done_unless(kill_application(bundle), "this application is not running");
    default:
      return done_unless(uninstall(bundle), "this application is not installed");
  }
}

}  // namespace

void ConsolePhone::touch(int finger, console::TouchPhase phase, CGPoint point) {
  hands_.touch(kConsoleFingers + finger, phase, point);
}

std::optional<CGPoint> ConsolePhone::centre_of(objc::Object object) {
  return uikit::centre_on_screen(object);
}

Refusal ConsolePhone::system(SystemEvent event, std::string_view detail) {
  switch (event) {
    case SystemEvent::Banner:
      springboard::present_banner(detail);
      return std::nullopt;
    case SystemEvent::NotificationCentre:
      springboard::present_notification_centre();
      return std::nullopt;
    case SystemEvent::ControlCentre:
      springboard::present_control_centre();
      return std::nullopt;
    case SystemEvent::Reachability:
      return done_unless(springboard::toggle_reachability(), "this device has no reachability");
    case SystemEvent::Lock:
      springboard::lock();
      return std::nullopt;
    case SystemEvent::Unlock:
      springboard::unlock();
      return std::nullopt;
    case SystemEvent::EditOn:
      springboard::set_editing(true);
      return std::nullopt;
    case SystemEvent::EditOff:
      springboard::set_editing(false);
      return std::nullopt;
    default:
      return application_event(event, detail);
  }
}

Refusal ConsolePhone::gesture(std::string_view event) {
  return done_unless(activator::perform_event(event),
                     "the gesture service has no event with this name");
}

Refusal ConsolePhone::make_folder() const {
  std::error_code error;
  std::filesystem::create_directories(parts_.screenshots, error);
  if (error) return fmt::format("{}: {}", parts_.screenshots.string(), error.message());
  return std::nullopt;
}

Refusal ConsolePhone::screenshot(const std::string& file) {
  if (auto refusal = make_folder()) return refusal;
  return parts_.with_picture([&](const screen::Picture& picture) {
    return screen::write_png(picture, parts_.screenshots / file);
  });
}

Refusal ConsolePhone::compare(const std::string& file) {
  if (auto refusal = make_folder()) return refusal;
  const std::string stem = std::filesystem::path(file).stem();
  return parts_.with_picture([&](const screen::Picture& picture) {
    return comparison::reason_not_equal(picture, file,
                                        parts_.screenshots / (stem + "-difference.png"));
  });
}

Refusal ConsolePhone::record(const std::string& file) {
  if (auto refusal = make_folder()) return refusal;
  return hands_.record(parts_.screenshots / file);
}

Refusal ConsolePhone::unrest() {
  const std::vector<std::string> reasons = springboard::reasons_for_unrest();
  if (reasons.empty()) return std::nullopt;
  return fmt::format("{}", fmt::join(reasons, "; "));
}

Refusal ConsolePhone::talk_to(std::string_view process) {
  const std::string name(process);
  const bool is_here = name == kHomeScreen;
  if (!is_here && !springboard::is_application_running(name))
    return fmt::format("{} is not running", name);
  elsewhere_ = is_here ? std::string() : name;
  return std::nullopt;
}

std::optional<std::string> ConsolePhone::answer_elsewhere(const std::string& line) {
  if (elsewhere_.empty()) return std::nullopt;
  return springboard::ask_application(elsewhere_, line)
      .value_or(fmt::format("error: {} is not running", elsewhere_));
}

}  // namespace host::launcher
