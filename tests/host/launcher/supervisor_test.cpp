#include "host/launcher/supervisor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <future>

#include "tests/host/launcher/child_signals.h"
#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/caught_log.h"

namespace {

using namespace host::launcher;
using testing::HasSubstr;

TEST(RestartLimit, AllowsFiveWithinAMinuteAndMoreLater) {
  RestartLimit limit;
  for (int i = 0; i < 5; ++i)
    EXPECT_TRUE(limit.allow(100 + i));
  EXPECT_FALSE(limit.allow(105));
  EXPECT_FALSE(limit.allow(159.9));
  EXPECT_TRUE(limit.allow(160));
  EXPECT_FALSE(limit.allow(160.5));
  EXPECT_TRUE(limit.allow(161));
}

class Supervisors : public testing::Test {
 protected:
  // A killed supervisor leaves its socket behind, which is then removed with the folder.
  Supervisors() { setenv("XDG_RUNTIME_DIR", folder_.path().c_str(), 1); }
  ~Supervisors() override { unsetenv("XDG_RUNTIME_DIR"); }

  ChildCommand command(const std::string& behaviour) {
    return {PROGRAM_FOLDER "/SpringBoard",
            {record().string(), behaviour},
            {{"PATH", DEVICE_TOOLS ":/usr/bin:/bin"}}};
  }
  int run(const std::string& behaviour) {
    return Supervisor({command(behaviour), {}}, clock_, nullptr).run();
  }

  /// How many of the starts were in safe mode; all of them were at the end.
  std::size_t safe_starts() const {
    std::size_t count = 0;
    for (const std::string& line : recorded())
      count += line.ends_with(" safe");
    return count;
  }

  std::filesystem::path record() const { return folder_.path() / "starts"; }
  std::vector<std::string> recorded() const { return lines_of(record()); }

  TemporaryFolder folder_;
  // Never advanced: everything happens within one minute.
  host::SteppedClock clock_;
};

TEST_F(Supervisors, EndWithAProcessThatExitsNormally) {
  EXPECT_EQ(run("end"), 0);
  EXPECT_EQ(recorded().size(), 1u);
}

TEST_F(Supervisors, NameTheProcessAfterItsFile) {
  run("end");
  EXPECT_TRUE(recorded().at(0).starts_with("SpringBoard "));
}

TEST_F(Supervisors, StartACrashedProcessAgain) {
  EXPECT_EQ(run("crash-once"), 0);
  EXPECT_EQ(recorded().size(), 2u);
}

TEST_F(Supervisors, GiveUpAfterFiveRestartsWithinAMinuteAndFiveMoreInSafeMode) {
  const host::test::CaughtLog log;
  EXPECT_EQ(run("crash"), kGaveUp);
  EXPECT_EQ(recorded().size(), 12u);
  EXPECT_EQ(safe_starts(), 6u);
  EXPECT_THAT(log.text(), HasSubstr("started without extensions"));
  EXPECT_THAT(log.text(), HasSubstr("the phone stays off"));
}

/// A clock by which a long time passes between any two events.
class LeapingClock final : public host::Clock {
 public:
  double now() const override { return time_ += 100; }

 private:
  mutable double time_ = 0;
};

TEST_F(Supervisors, CountOnlyTheTimeInWhichTheLoopTurned) {
  const LeapingClock clock;
  EXPECT_EQ(Supervisor({command("crash"), {}}, clock, nullptr).run(), kGaveUp);
  EXPECT_EQ(recorded().size(), 12u);
  std::filesystem::remove(record());
  EXPECT_EQ(Supervisor({command("crash-in-later-life"), {}}, clock, nullptr).run(), 0);
  EXPECT_EQ(recorded().size(), 11u);
  EXPECT_EQ(safe_starts(), 0u);
}

TEST_F(Supervisors, StayInSafeModeWhenThatHelps) {
  EXPECT_EQ(run("crash-unless-safe"), 0);
  EXPECT_EQ(recorded().size(), 7u);
  EXPECT_EQ(safe_starts(), 1u);
}

TEST_F(Supervisors, LeaveSafeModeWhenARestartIsRequested) {
  EXPECT_EQ(run("restart-when-safe"), 0);
  EXPECT_EQ(recorded().size(), 8u);
  EXPECT_EQ(safe_starts(), 1u);
}

TEST_F(Supervisors, CountAFailureAsACrash) {
  EXPECT_EQ(run("fail"), kGaveUp);
  EXPECT_EQ(recorded().size(), 12u);
}

TEST_F(Supervisors, CountAnyExitThatIsNotAnnouncedAsACrash) {
  for (const char* behaviour : {"exit", "fail-as-if-unable"}) {
    std::filesystem::remove(record());
    const host::test::CaughtLog log;
    EXPECT_EQ(run(behaviour), 0) << behaviour;
    EXPECT_EQ(recorded().size(), 7u) << behaviour;
    EXPECT_THAT(log.text(), HasSubstr("although no one switched the phone off"));
  }
}

TEST_F(Supervisors, ShowTheWindowOnRequest) {
  Supervisor supervisor({command("show-itself"), {}, true}, clock_, nullptr);
  block_child_signals();
  auto answer = std::async(std::launch::async, [path = supervisor.control_socket()] {
    return ask_supervisor(path, {ControlRequest::Kind::Show, {}, {}});
  });
  EXPECT_EQ(supervisor.run(), 0);
  EXPECT_TRUE(answer.get());
  EXPECT_EQ(recorded().at(1), "told w");
}

TEST_F(Supervisors, RestartAProcessThatNoLongerAnswers) {
  setenv(host::kPatienceVariable, "0.02", 1);
  const host::test::CaughtLog log;
  const host::RealClock clock;
  EXPECT_EQ(Supervisor({command("hang-once"), {}}, clock, nullptr).run(), 0);
  unsetenv(host::kPatienceVariable);
  EXPECT_EQ(recorded().size(), 2u);
  EXPECT_THAT(log.text(), HasSubstr("SpringBoard has not answered"));
}

TEST_F(Supervisors, DoNotRetryAProcessThatCannotStart) {
  EXPECT_EQ(run("cannot-start"), kCannotStart);
  EXPECT_EQ(recorded().size(), 1u);
}

TEST_F(Supervisors, RestartTheProcessWhenItAsksThroughKillall) {
  EXPECT_EQ(run("killall-once"), 0);
  EXPECT_EQ(recorded().size(), 2u);
}

TEST_F(Supervisors, ForwardSignalsAndEndWithThem) {
  EXPECT_EQ(run("terminate-supervisor"), 128 + SIGTERM);
  ASSERT_EQ(recorded().size(), 2u);
  EXPECT_EQ(recorded().at(1), "terminated");
}

TEST_F(Supervisors, LeaveNoZombieBehind) {
  run("crash-once");
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(Supervisors, NoticeTheEndOfTheirProcessInAnEnvironmentThatIgnoresIt) {
  signal(SIGCHLD, SIG_IGN);
  EXPECT_EQ(run("crash-once"), 0);
  signal(SIGCHLD, SIG_DFL);
  EXPECT_EQ(recorded().size(), 2u);
}

pid_t wait_for_recorded_process(const std::filesystem::path& record) {
  std::vector<std::string> lines;
  while (lines.empty()) {
    sched_yield();
    lines = lines_of(record);
  }
  return std::stoi(lines.at(0).substr(lines.at(0).find(' ')));
}

TEST_F(Supervisors, EndTheirProcessWhenTheyAreKilled) {
  // This process adopts the orphan and can wait for its end.
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  const pid_t supervisor = fork();
  if (supervisor == 0) _exit(run("wait"));
  const pid_t child = wait_for_recorded_process(record());
  kill(supervisor, SIGKILL);
  int status = 0;
  ASSERT_EQ(waitpid(supervisor, &status, 0), supervisor);
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

TEST_F(Supervisors, LeaveOtherProcessesOfThatNameAlone) {
  const auto other_record = folder_.path() / "other";
  ChildCommand other = command("wait");
  other.arguments[0] = other_record;
  const auto stranger = start_child(other, {});
  ASSERT_TRUE(stranger);
  wait_for_recorded_process(other_record);

  EXPECT_EQ(run("killall-once"), 0);

  EXPECT_EQ(waitpid(*stranger, nullptr, WNOHANG), 0);
  kill(*stranger, SIGKILL);
  waitpid(*stranger, nullptr, 0);
}

}  // namespace
