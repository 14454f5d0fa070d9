#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

/// A phone with an extension that does not behave.
class Misfits : public PhoneTest {
 protected:
  Misfits() { install("Misfit", TEST_MISFIT); }
  ~Misfits() override {
    for (const char* name : {"MISFIT", "MISFIT_PIPE", "SONAVUE_PATIENCE"})
      unsetenv(name);
  }

  /// The pipe that makes an extension wait until its other end is opened.
  void make_pipe() const {
    ASSERT_EQ(mkfifo(pipe().c_str(), 0600), 0);
    setenv("MISFIT_PIPE", pipe().c_str(), 1);
  }
  void open_other_end() const { close(open(pipe().c_str(), O_WRONLY | O_CLOEXEC)); }
  fs::path pipe() const { return folder() / "pipe"; }

  Arguments with_console() const { return headless({"--console"}); }
  /// Waits for a home screen that answers the console; those before it end with their line.
  static bool waits_for_answer(RunningPhone& phone) {
    for (int line = 0; line < 20; ++line) {
      if (phone.ask("advance 1") == "ok") return true;
    }
    return false;
  }
};

TEST_F(Misfits, AThreadThatAbortsAfterTheLoadLeadsToSafeModeUntilATapOnRestart) {
  setenv("MISFIT", "abort later", 1);
  RunningPhone phone(with_console());
  ASSERT_TRUE(phone.waits_for_error("safe mode: the phone runs without extensions"));
  EXPECT_EQ(phone.count_of_errors_with("SpringBoard ended by signal 6"), 6);
  EXPECT_EQ(phone.count_of_errors_with("signal 6; the nearest extension on the stack is Misfit"),
            6);
  EXPECT_EQ(phone.count_of_errors_with("loaded Misfit"), 6);
  EXPECT_EQ(phone.count_of_errors_with(libraries().string()), 1);
  ASSERT_TRUE(waits_for_answer(phone));
  EXPECT_EQ(phone.ask("print isShow"), "error: unknown name: isShow (column 7)");
  fs::remove(libraries() / "Misfit.so");
  EXPECT_EQ(phone.ask("tap 250 400"), "ok");
  ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2", 7));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
}

TEST_F(Misfits, AFaultIsReportedWithTheLibraryWhoseCodeIsRunning) {
  setenv("MISFIT", "fault later", 1);
  RunningPhone phone(headless());
  EXPECT_TRUE(phone.waits_for_error("[SpringBoard] error: signal 11 in the code of Misfit"));
}

TEST_F(Misfits, AnExitDuringTheLoadCountsAsACrash) {
  setenv("MISFIT", "exit", 1);
  RunningPhone phone(with_console());
  ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2"));
  EXPECT_EQ(phone.count_of_errors_with("ended with status 0, although no one switched"), 5);
  EXPECT_EQ(phone.count_of_errors_with("Misfit is left out: it crashed 5 times"), 1);
}

TEST_F(Misfits, ATurnOfTheLoopThatDoesNotEndIsReportedWithTheLibrary) {
  setenv("MISFIT", "hang in the loop", 1);
  setenv("SONAVUE_PATIENCE", "0.4", 1);
  RunningPhone phone(headless());
  ASSERT_TRUE(phone.waits_for_error("SpringBoard has not answered for 2 seconds"));
  EXPECT_TRUE(phone.waits_for_error("signal 6 in the code of Misfit"));
  EXPECT_TRUE(phone.waits_for_error("loaded Sonavue2", 2));
}

TEST_F(Misfits, ALoadThatDoesNotEndIsNamedAndLeftOutOfTheNextStart) {
  setenv("MISFIT", "hang", 1);
  setenv("SONAVUE_PATIENCE", "0.05", 1);
  RunningPhone phone(with_console());
  ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2"));
  for (const char* line : {"Misfit is still being loaded", "Misfit does not finish loading",
                           "Misfit is left out: its load did not end"})
    EXPECT_EQ(phone.count_of_errors_with(line), 1) << line;
}

TEST_F(Misfits, ASlowLoadIsNamedWhileItLasts) {
  make_pipe();
  setenv("MISFIT", "wait", 1);
  setenv("SONAVUE_PATIENCE", "0.5", 1);
  RunningPhone phone(with_console());
  ASSERT_TRUE(phone.waits_for_error("Misfit is still being loaded after 1 seconds"));
  EXPECT_EQ(phone.count_of_errors_with("loaded Misfit"), 0);
  open_other_end();
  ASSERT_TRUE(phone.waits_for_error("loaded Misfit"));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
}

TEST_F(Misfits, ALaunchThatHangsIsReportedWhileItLasts) {
  make_pipe();
  setenv("MISFIT", "hang in the launch", 1);
  setenv("SONAVUE_PATIENCE", "0.05", 1);
  RunningPhone phone(with_console());
  ASSERT_TRUE(phone.waits_for_error("SpringBoard is still starting after 0.5 seconds"));
  open_other_end();
  EXPECT_EQ(phone.ask("print 1"), "1");
}

}  // namespace
