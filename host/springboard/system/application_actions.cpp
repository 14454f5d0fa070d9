#include "host/application/wire/message_reader.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/processes/application_view.h"
#include "host/springboard/processes/process_keeper.h"
#include "host/springboard/processes/running_processes.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/system/keyboard_receiver.h"
#include "host/springboard/system/system_actions.h"
#include "host/springboard/system/ui_controller.h"
#include "host/uikit/focus/focus.h"
#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/touch/touch_input.h"
#include "host/uikit/view/responder.h"

namespace host::springboard {

using namespace application;

namespace {

RunningProcesses::Process process_in_front() {
  return objc::state_of<UserInterfaceController>(SBUIController::sharedInstance())
      .process_in_front();
}

}  // namespace

RunningProcesses::Process keyboard_receiver() {
  return is_locked() || uikit::first_responder() ? nullptr : process_in_front();
}

void end_focus_in_application() {
  if (const auto process = process_in_front()) process->send(FocusEnds{});
}

void end_focus() {
  uikit::end_focus();
  end_focus_in_application();
}

namespace {

bool pass_on(const ToApplication& message) {
  const auto receiver = keyboard_receiver();
  if (receiver) receiver->send(message);
  return static_cast<bool>(receiver);
}

}  // namespace

bool turn_wheel_over(CGPoint point, CGPoint by, uikit::WheelKind kind) {
  const UIView view = uikit::hit_of_pointer(point).view;
  if (!view.isKindOfClass(SBHostedApplicationView::cls()))
    return uikit::turn_wheel(point, by, kind);
  const CGPoint there = uikit::from_screen(view, point);
  return objc::state_of<ApplicationView>(view).turn_wheel(
      {kind == uikit::WheelKind::Precise, there.x, there.y, by.x, by.y, RunLoop::main().now()});
}

bool type_into_application(const std::string& text) {
  return pass_on(TypedText{text.substr(0, kLongestText)});
}

bool compose_in_application(const std::string& text, int caret) {
  return pass_on(ComposedText{text.substr(0, kLongestText), caret});
}

bool press_key_in_application(const std::string& name) {
  return pass_on(PressedKey{name});
}

std::optional<std::string> ask_application(const std::string& program, const std::string& line) {
  const auto process = running_processes().find_program(program);
  if (!process || line.size() > kLongestText) return std::nullopt;
  return process->ask(line);
}

bool kill_application(std::string_view bundle) {
  const std::string name(bundle);
  if (!running_processes().find(name)) return false;
  // The end is noticed when its channel closes, like any other.
  configuration().process_keeper->close(name);
  return true;
}

void adopt_screen_density() {
  running_processes().adopt_screen_density();
}

bool is_application_running(const std::string& program) {
  return static_cast<bool>(running_processes().find_program(program));
}

}  // namespace host::springboard
