#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>

#include <future>

#include "host/launcher/control_socket.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;
using Kind = ControlRequest::Kind;

/// A phone's `killall` on a machine with a `killall` of its own, which must never be reached.
class Killall : public testing::Test {
 protected:
  Killall() {
    const auto program = machine() / "killall";
    write_file(program, "#!/bin/sh\necho \"$@\" >> " + reached().string() + "\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    setenv("XDG_RUNTIME_DIR", folder_.path().c_str(), 1);
    control_.emplace();
    unsetenv("XDG_RUNTIME_DIR");
  }
  ~Killall() override { EXPECT_EQ(lines_of(reached()), Lines()); }

  using Lines = std::vector<std::string>;
  std::filesystem::path machine() const { return folder_.path() / "machine"; }
  std::filesystem::path reached() const { return folder_.path() / "reached"; }
  Lines errors() const { return lines_of(folder_.path() / "errors"); }

  /// Runs it on a phone where only the home screen and Music are running.
  int run(const std::string& arguments) {
    return run_with(std::string(kControlSocketVariable) + "=" + control_->path().string(),
                    arguments);
  }
  int run_with(const std::string& environment, const std::string& arguments) {
    const std::string line = "env -i PATH=" DEVICE_TOOLS ":" + machine().string() +
                             ":/usr/bin:/bin " + environment + " killall " + arguments + " 2>" +
                             (folder_.path() / "errors").string();
    auto ended = std::async(std::launch::async, [line] { return std::system(line.c_str()); });
    while (ended.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
      serve();
    return WEXITSTATUS(ended.get());
  }
  void serve() {
    pollfd waiting{control_->descriptor(), POLLIN, 0};
    if (poll(&waiting, 1, 1) <= 0) return;
    control_->serve([this](const ControlRequest& request) {
      const bool is_running = request.program == "SpringBoard" || request.program == "Music";
      if (is_running && request.kind == Kind::Kill) killed_.push_back(request.program);
      return is_running;
    });
  }

  TemporaryFolder folder_;
  std::optional<ControlSocket> control_;
  Lines killed_;
};

TEST_F(Killall, EndsTheHomeScreenWhateverTheSignalAndTheUser) {
  for (const char* arguments :
       {"SpringBoard", "-9 SpringBoard", "-KILL SpringBoard", "-SIGKILL SpringBoard",
        "-s KILL SpringBoard", "-sKILL SpringBoard", "--signal KILL SpringBoard",
        "--signal=SIGKILL SpringBoard", "-u root SpringBoard", "-q -w -u root SpringBoard",
        "-qws KILL SpringBoard", "-y 5s SpringBoard", "-- SpringBoard"}) {
    killed_.clear();
    EXPECT_EQ(run(arguments), 0) << arguments;
    EXPECT_EQ(killed_, Lines{"SpringBoard"}) << arguments;
  }
}

TEST_F(Killall, EndsEachProcessThatIsNamed) {
  EXPECT_EQ(run("SpringBoard Music"), 0);
  EXPECT_EQ(killed_, Lines({"SpringBoard", "Music"}));
}

TEST_F(Killall, KnowsOnlyThePhonesProcesses) {
  EXPECT_EQ(run("sh SpringBoard"), 1);
  EXPECT_EQ(errors(), Lines{"sh: no process found"});
  EXPECT_EQ(killed_, Lines{"SpringBoard"});
  EXPECT_EQ(run("-q sh"), 1);
  EXPECT_EQ(errors(), Lines());
}

TEST_F(Killall, OfSignalZeroEndsNothing) {
  EXPECT_EQ(run("-0 SpringBoard"), 0);
  EXPECT_EQ(run("-s 0 SpringBoard"), 0);
  EXPECT_EQ(run("-0 Preferences"), 1);
  EXPECT_EQ(killed_, Lines());
}

TEST_F(Killall, StaysInAPhoneThatCannotBeReached) {
  EXPECT_EQ(run_with("", "SpringBoard"), 1);
  EXPECT_EQ(run_with(std::string(kControlSocketVariable) + "=/nowhere", "-s KILL SpringBoard"), 1);
  EXPECT_EQ(errors(), Lines{"SpringBoard: no process found"});
}

TEST_F(Killall, RefusesACallThatNamesNoProcessOrAnUnknownSignal) {
  for (const char* arguments : {"", "-u root", "-s", "-s NOTHING SpringBoard", "-r Spring.*"})
    EXPECT_EQ(run(arguments), 1) << arguments;
  EXPECT_EQ(killed_, Lines());
}

/// A runtime folder whose name alone takes more than a socket's address can hold.
class LongRuntimeFolder : public testing::Test {
 protected:
  LongRuntimeFolder() {
    std::filesystem::create_directories(runtime());
    setenv("XDG_RUNTIME_DIR", runtime().c_str(), 1);
  }
  ~LongRuntimeFolder() override { unsetenv("XDG_RUNTIME_DIR"); }
  std::filesystem::path runtime() const { return folder_.path() / std::string(100, 'r'); }

  TemporaryFolder folder_;
};

TEST_F(LongRuntimeFolder, IsLeftForOneThatHoldsEverySocket) {
  const ControlSocket control;
  ASSERT_TRUE(control);
  EXPECT_FALSE(control.folder().string().starts_with(runtime().string()));
  EXPECT_TRUE(std::filesystem::is_empty(runtime()));
}

}  // namespace
