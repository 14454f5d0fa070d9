#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "host/runtime/run_loop.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/variable.h"

namespace host::test {

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
