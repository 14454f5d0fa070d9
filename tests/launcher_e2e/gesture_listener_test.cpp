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
  /// The listener comes back as soon as there is somebody at this end.
  void let_it_go_on() const {
    const int end = open(pipe().c_str(), O_WRONLY | O_CLOEXEC);
    if (end >= 0) close(end);
  }
  static constexpr const char* kAssign =
      "print [[LAActivator sharedInstance] assignEvent:[LAEvent eventWithName:@\"shake\" "
      "mode:@\"springboard\"] toListenerWithName:@\"test.lingerer\"]";
};

TEST_F(GestureListeners, OneThatHangsIsNamedWhileItHangsAndThePhoneGoesOnAfterIt) {
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask(kAssign), "YES");
  phone.say("gesture shake");
  // It hangs in the home screen's process until it is let go, so that this is said meanwhile.
  EXPECT_TRUE(phone.waits_for_error("gesture listener test.lingerer hangs"));
  let_it_go_on();
  EXPECT_EQ(phone.next_answer(), "ok");
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("gesture listener test.lingerer hangs"), 1);
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

}  // namespace
