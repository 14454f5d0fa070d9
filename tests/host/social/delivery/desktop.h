#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "host/runtime/run_loop.h"
#include "tests/support/media_fixtures.h"

namespace host::test {

/// Sets an environment variable and restores it afterwards.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    setenv(name, value.c_str(), 1);
  }
  ~Variable() {
    if (before_) {
      setenv(name_, before_->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> before_;
};

/// A desktop whose opener reports its arguments through a pipe and ends with a chosen status.
class FakeDesktop {
 public:
  explicit FakeDesktop(int status = 0)
      : path_("PATH", folder_.path() + ":/usr/bin:/bin"), pipe_(folder_ / "pipe") {
    mkfifo(pipe_.c_str(), 0600);
    const std::string script = folder_ / "xdg-open";
    std::ofstream(script) << "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" > '" << pipe_ << "'\nexit "
                          << status << "\n";
    chmod(script.c_str(), 0700);
  }

  /// Waits for the opener; returns the number of its arguments and each of them, followed by `|`.
  std::string given() const {
    std::ifstream pipe(pipe_);
    return {std::istreambuf_iterator<char>(pipe), {}};
  }
  /// Waits until the opener has ended and delivers that to the loop.
  void let_end(RunLoop& loop) const {
    siginfo_t info;
    waitid(P_ALL, 0, &info, WEXITED | WNOWAIT);
    loop.run_ready();
  }

 private:
  media_tests::TemporaryFolder folder_;
  Variable path_;
  std::string pipe_;
};

}  // namespace host::test
