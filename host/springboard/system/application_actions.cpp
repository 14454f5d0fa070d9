#include "host/application/wire/message_reader.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/processes/process_keeper.h"
#include "host/springboard/processes/running_processes.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/system/system_actions.h"
#include "host/springboard/system/ui_controller.h"
#include "host/uikit/view/responder.h"

namespace host::springboard {

using namespace application;

namespace {

/// Whoever has the keys of the physical keyboard; null when it is the home screen.
RunningProcesses::Process taker_of_keys() {
  if (is_locked() || uikit::first_responder()) return nullptr;
  return objc::state_of<UserInterfaceController>(SBUIController::sharedInstance())
      .process_in_front();
}

bool pass_on(const ToApplication& message) {
  const auto taker = taker_of_keys();
  if (taker) taker->send(message);
  return static_cast<bool>(taker);
}

}  // namespace

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
  // What is gone is noticed by the silence of its channel, like any other end.
  configuration().process_keeper->close(name);
  return true;
}

bool is_application_running(const std::string& program) {
  return static_cast<bool>(running_processes().find_program(program));
}

}  // namespace host::springboard
