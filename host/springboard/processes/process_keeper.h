#pragma once

#include <string>

#include "host/application/wire/channel.h"

namespace host::springboard {

/// Whoever owns the processes of applications, which outlive the home screen.
class ProcessKeeper {
 public:
  virtual ~ProcessKeeper() = default;

  /// True when the application runs, from now on or already; false when it has no such program.
  virtual bool open(const std::string& bundle, const std::string& program) = 0;
  /// Ends it at once.
  virtual void close(const std::string& bundle) = 0;
  /// A connection to one that runs; an empty one when there is none.
  virtual application::Channel connect(const std::string& bundle) = 0;
};

}  // namespace host::springboard
