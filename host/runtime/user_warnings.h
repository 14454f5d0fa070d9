#pragma once

#include <functional>
#include <map>
#include <string>

#include "host/runtime/run_loop.h"

namespace host {

/// Takes what `warn_user` says in all threads of the process, and tells it on the loop. The same
/// words are told once a minute at most, however often something fails.
class UserWarnings {
 public:
  using Tell = std::function<void(const std::string& few_words)>;

  /// One at a time.
  UserWarnings(RunLoop& loop, Tell tell);
  ~UserWarnings();
  UserWarnings(const UserWarnings&) = delete;
  UserWarnings& operator=(const UserWarnings&) = delete;

 private:
  void tell_waiting();

  RunLoop& loop_;
  Tell tell_;
  std::map<std::string, double> told_;  // when it was, in the last minute
  RunLoop::Id watch_;
};

}  // namespace host
