#pragma once

#include <sys/types.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop/bus/bus.h"
#include "host/runtime/run_loop.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/variable.h"

namespace host::test {

/// A bus of its own for one test, which is the session's bus, or the system's, for this process and
/// its children. It starts no services. The daemon can be killed and started again.
class PrivateBus {
 public:
  explicit PrivateBus(const char* variable = "DBUS_SESSION_BUS_ADDRESS");
  ~PrivateBus() { kill(); }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;

  /// Returns when the daemon takes connections.
  void start();
  void kill();
  /// Keeps the daemon from reading and answering.
  void freeze() const;
  void thaw() const;
  std::string address() const { return "unix:path=" + folder_ / "bus"; }

 private:
  media_tests::TemporaryFolder folder_;
  Variable variable_;
  pid_t daemon_ = 0;
};

/// Runs the loop until something has happened. Returns whether it has before a deadline that only a
/// failure reaches.
bool run_until(RunLoop& loop, const std::function<bool()>& has_happened);

/// The contents of a message in one line, as `"text" 5 true ["a" "b"] {"key": 1}`.
std::string contents_of(sd_bus_message* message);

/// Another program on the bus, in the test's process and on its loop.
class BusPeer {
 public:
  explicit BusPeer(RunLoop& loop) : bus(loop, desktop::Bus::Kind::kSession), loop_(loop) {
    bus.open();
  }

  /// Returns the answer's contents, or `error: NAME`.
  std::string ask(const desktop::Bus::Method& method, const desktop::Bus::Fill& fill = nullptr);
  /// Returns whether the name is this program's now.
  bool take_name(const char* name);
  /// Keeps the signals of this object, as `Name contents`.
  void record(const char* path);
  /// Everything that was sent to this program or to the service before has arrived then.
  void catch_up_with(const char* service);
  std::vector<std::string> take_signals() { return std::exchange(signals_, {}); }
  /// Keeps a slot until the peer ends.
  void keep(desktop::SlotRef slot) { slots_.push_back(std::move(slot)); }

  desktop::Bus bus;

 private:
  RunLoop& loop_;
  std::vector<std::string> signals_;
  std::vector<desktop::SlotRef> slots_;
};

struct Output {
  int status = -1;
  std::string text;  // standard output and standard error
};

/// Runs a program to its end, and the loop meanwhile.
Output run_program(RunLoop& loop, const std::vector<std::string>& arguments);

}  // namespace host::test
