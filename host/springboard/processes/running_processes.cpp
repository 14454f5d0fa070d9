#include "host/springboard/processes/running_processes.h"

#include <algorithm>
#include <utility>

#include "host/runtime/log.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/processes/process_keeper.h"

namespace host::springboard {
namespace {

ApplicationProcess::Time time_of_phone() {
  return configuration().has_stepped_clock ? ApplicationProcess::Time::Stepped
                                           : ApplicationProcess::Time::Real;
}

/// The reason as the log states it.
const char* log_text(ProcessEnd reason) {
  switch (reason) {
    case ProcessEnd::NoAnswer:
      return "does not answer: closed";
    case ProcessEnd::Flood:
      return "floods the phone with messages: closed";
    case ProcessEnd::Garbage:
      return "sends invalid messages: closed";
    case ProcessEnd::Ended:
      break;
  }
  return "has ended";
}

}  // namespace

RunningProcesses::RunningProcesses()
    : player_([this]() -> ApplicationProcess* { return find(front_).get(); }) {}

RunningProcesses::~RunningProcesses() = default;

RunningProcesses::Process RunningProcesses::open(const std::string& bundle,
                                                 const std::string& program) {
  if (Process running = find(bundle)) return running;
  ProcessKeeper* keeper = configuration().process_keeper;
  if (!keeper || program.empty()) return nullptr;
  if (!keeper->open(bundle, program)) {
    spdlog::error("{} could not be started", program);
    return nullptr;
  }
  auto made = std::make_shared<ApplicationProcess>(keeper->connect(bundle), time_of_phone(),
                                                   events_of(bundle));
  if (!made->is_alive()) return nullptr;
  running_[bundle] = {program, made};
  return made;
}

ApplicationProcess::Events RunningProcesses::events_of(const std::string& bundle) {
  return {[this, bundle] {
            if (frame_came_) frame_came_(bundle);
          },
          [this, bundle](ProcessEnd reason) { ended(bundle, reason); },
          [this](const application::SteerPlayer& command) { player_.carry_out(command); }};
}

RunningProcesses::Process RunningProcesses::find(const std::string& bundle) const {
  const auto found = running_.find(bundle);
  return found == running_.end() ? nullptr : found->second.process;
}

RunningProcesses::Process RunningProcesses::find_program(const std::string& program) const {
  const auto found = std::find_if(running_.begin(), running_.end(), [&program](const auto& one) {
    return one.second.program == program;
  });
  return found == running_.end() ? nullptr : found->second.process;
}

void RunningProcesses::bring_to_front(const std::string& bundle) {
  if (front_ == bundle) return;
  if (const Process before = find(front_)) before->set_in_front(false);
  front_ = bundle;
  if (const Process now = find(bundle)) now->set_in_front(true);
  player_.watch(!bundle.empty());
}

void RunningProcesses::adopt_screen_density() {
  // A process that turns out to have ended leaves the list.
  const auto running = running_;
  for (const auto& [bundle, entry] : running)
    entry.process->adopt_screen_density();
}

void RunningProcesses::close(const std::string& bundle) {
  if (!running_.erase(bundle)) return;
  if (front_ == bundle) front_.clear();
  if (ProcessKeeper* keeper = configuration().process_keeper) keeper->close(bundle);
}

void RunningProcesses::ended(const std::string& bundle, ProcessEnd reason) {
  const auto found = running_.find(bundle);
  if (found == running_.end()) return;
  spdlog::warn("{} {}", found->second.program, log_text(reason));
  // The process is in the middle of calling us: keep it until the next turn.
  RunLoop::main().perform([kept = found->second.process] {});
  close(bundle);
  if (gone_) gone_(bundle);
}

RunningProcesses& running_processes() {
  return SharedPart<RunningProcesses>::get();
}

}  // namespace host::springboard
