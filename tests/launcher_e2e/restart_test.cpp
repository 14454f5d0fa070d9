#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

using Restarts = PhoneTest;

/// Runs a command in the environment of this device's processes.
int run_on_device_of(pid_t home_screen, const char* command) {
  std::ifstream file("/proc/" + std::to_string(home_screen) + "/environ", std::ios::binary);
  std::string text(std::istreambuf_iterator<char>(file), {});
  std::vector<char*> environment;
  for (std::size_t start = 0; start < text.size(); start = text.find('\0', start) + 1)
    environment.push_back(text.data() + start);
  environment.push_back(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    execle("/bin/sh", "sh", "-c", command, nullptr, environment.data());
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(Restarts, AKilledHomeScreenComesBackWithTheExtensionAndItsConsole) {
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask("print isShow"), "NO");
  const pid_t before = phone.home_screen();
  ASSERT_NE(before, 0);

  kill(before, SIGKILL);

  ASSERT_NE(phone.wait_for_home_screen_after(before), 0);
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("loaded Sonavue2"), 2);
  EXPECT_EQ(phone.count_of_errors_with("SpringBoard ended by signal 9"), 1);
  EXPECT_EQ(phone.ask("quit"), "ok");
  EXPECT_EQ(phone.wait_for_end(), 0);
}

TEST_F(Restarts, KillallOnTheDeviceRestartsOnlyThisDevice) {
  RunningPhone phone(headless({"--console"}));
  RunningPhone other({"--headless", "--root", folder() / "other", "--music", music(), "--console"});
  ASSERT_EQ(phone.ask("print isShow"), "NO");
  ASSERT_EQ(other.ask("print isShow"), "NO");
  const pid_t before = phone.home_screen();
  const pid_t others = other.home_screen();

  EXPECT_EQ(run_on_device_of(before, "killall SpringBoard"), 0);

  ASSERT_NE(phone.wait_for_home_screen_after(before), 0);
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("loaded Sonavue2"), 2);
  EXPECT_EQ(other.home_screen(), others);
  EXPECT_EQ(other.ask("print isShow"), "NO");
  EXPECT_EQ(other.count_of_errors_with("loaded Sonavue2"), 1);
}

TEST_F(Restarts, SixCrashesWithinAMinuteAndSixInSafeModeEndThePhone) {
  RunningPhone phone(headless());
  pid_t process = 0;
  for (int crash = 0; crash < 12; ++crash) {
    process = phone.wait_for_home_screen_after(process);
    ASSERT_NE(process, 0) << "after " << crash << " crashes";
    kill(process, SIGKILL);
  }
  EXPECT_EQ(phone.wait_for_end(), 3);
  EXPECT_EQ(phone.count_of_errors_with("SpringBoard ended more than 5 times within a minute"), 2);
  EXPECT_EQ(phone.count_of_errors_with("started without extensions"), 1);
  EXPECT_THAT(phone.error_lines().back(), testing::HasSubstr("the phone stays off"));
}

TEST_F(Restarts, SwitchingThePhoneOffLeavesNoProcessBehind) {
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask("print isShow"), "NO");
  const pid_t process = phone.home_screen();
  phone.close_input();
  EXPECT_EQ(phone.wait_for_end(), 0);
  EXPECT_EQ(kill(process, 0), -1);
}

}  // namespace
