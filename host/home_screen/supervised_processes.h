#pragma once

#include <filesystem>

#include "host/springboard/processes/process_keeper.h"

namespace host::launcher {

/// The applications' processes, which are managed by the phone's supervisor.
class SupervisedProcesses final : public springboard::ProcessKeeper {
 public:
  /// Connects to the supervisor by the socket named in the environment; without one, no application
  /// can be opened.
  SupervisedProcesses();

  bool open(const std::string& bundle, const std::string& program) override;
  void close(const std::string& bundle) override;
  application::Channel connect(const std::string& bundle) override;

 private:
  std::filesystem::path control_;
};

}  // namespace host::launcher
