#pragma once

#include <filesystem>

#include "bench/phone/bench_phone.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/installation.h"
#include "host/launcher/running_applications.h"
#include "host/launcher/unix_socket.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/processes/process_keeper.h"

namespace bench {

/// Applications as processes on a phone without a supervisor.
class OwnPrograms final : public host::springboard::ProcessKeeper {
 public:
  explicit OwnPrograms(const BenchPhone& phone)
      : sockets_(phone.root()),
        applications_({host::launcher::find_installation().home_screen.parent_path(), phone.root()},
                      {{}, {"--device", kBenchDevice, "--root", phone.root()}, {}}) {
    auto configuration = host::springboard::configuration();
    configuration.process_keeper = this;
    host::springboard::configure(configuration);
  }

  bool open(const std::string& bundle, const std::string& program) override {
    return applications_.open(bundle, program);
  }
  void close(const std::string& bundle) override { applications_.close(bundle); }
  host::application::Channel connect(const std::string& bundle) override {
    return host::application::Channel(
        host::launcher::connected_socket(host::launcher::application_socket(sockets_, bundle)));
  }
  pid_t process(const std::string& bundle) const { return applications_.process(bundle); }

 private:
  std::filesystem::path sockets_;
  host::launcher::RunningApplications applications_;
};

}  // namespace bench
