#pragma once

#include <string>

#include "host/application/wire/channel.h"

namespace host::springboard {

/// Owns the processes of applications, which outlive the home screen.
class ProcessKeeper {
 public:
  virtual ~ProcessKeeper() = default;

  /// Starts the application unless it is already running. Returns false when there is no such
  /// program.
  virtual bool open(const std::string& bundle, const std::string& program) = 0;
  /// Ends the process at once.
  virtual void close(const std::string& bundle) = 0;
  /// Returns a connection to a running application; an empty channel when it does not run.
  virtual application::Channel connect(const std::string& bundle) = 0;
};

}  // namespace host::springboard
