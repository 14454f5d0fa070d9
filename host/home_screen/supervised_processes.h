#pragma once

#include <filesystem>

#include "host/springboard/processes/process_keeper.h"

namespace host::launcher {

/// The applications' processes, of which the phone's supervisor takes care.
class SupervisedProcesses final : public springboard::ProcessKeeper {
 public:
  /// Reaches the supervisor by the socket that the environment names; without one nothing opens.
  SupervisedProcesses();

  bool open(const std::string& bundle, const std::string& program) override;
  void close(const std::string& bundle) override;
  application::Channel connect(const std::string& bundle) override;

 private:
  std::filesystem::path control_;
};

}  // namespace host::launcher
