#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

class GestureListeners : public PhoneTest {
 protected:
  GestureListeners() {
    fs::create_directories(libraries());
    fs::copy_file(TEST_LINGERING_EXTENSION, libraries() / "Lingerer.so");
    std::ofstream(libraries() / "Lingerer.plist")
        << "{ Filter = { Bundles = (\"com.apple.springboard\"); }; }\n";
    mkfifo(pipe().c_str(), 0600);
    setenv("LINGERER_PIPE", pipe().c_str(), 1);
  }
  ~GestureListeners() override { unsetenv("LINGERER_PIPE"); }

  fs::path pipe() const { return folder() / "pipe"; }
  /// Makes the listener return, by opening the other end of its pipe.
  void release_listener() const {
    const int end = open(pipe().c_str(), O_WRONLY | O_CLOEXEC);
    if (end >= 0) close(end);
  }
  static constexpr const char* kAssign =
      "print [[LAActivator sharedInstance] assignEvent:[LAEvent eventWithName:@\"shake\" "
      "mode:@\"springboard\"] toListenerWithName:@\"test.lingerer\"]";
};

TEST_F(GestureListeners, OneThatHangsIsNamedWhileItHangsAndThePhoneContinues) {
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask(kAssign), "YES");
  phone.say("gesture shake");
  // The listener hangs the home screen until it is released, so this line is logged meanwhile.
  EXPECT_TRUE(phone.waits_for_error("gesture listener test.lingerer hangs"));
  release_listener();
  EXPECT_EQ(phone.next_answer(), "ok");
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("gesture listener test.lingerer hangs"), 1);
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

}  // namespace
