#include "host/foundation/notifications.h"

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "host/foundation/device_paths.h"
#include "tests/support/host_test.h"

namespace {

namespace fs = std::filesystem;
using namespace host::foundation;

struct Notifications : host::test::HostTest {
  Notifications() : root(fs::temp_directory_path() / ("notified-" + std::to_string(getpid()))) {
    fs::create_directories(root);
    set_device_root(root.string());
  }
  ~Notifications() override {
    stop_observing_processes(this, "");
    set_device_root("");
    fs::remove_all(root);
  }

  void observe(const std::string& name) {
    observe_processes(this, name, [this, name] { told.push_back(name); });
  }

  fs::path root;
  std::vector<std::string> told;
};

TEST_F(Notifications, ReachObserversOfTheirNameFromAnyProcess) {
  observe("com.example.hello/changed");
  observe("..");
  post_to_processes("com.example.hello/changed");
  post_to_processes("com.example.other");
  loop.run_ready();
  EXPECT_EQ(told, std::vector<std::string>{"com.example.hello/changed"});

  const pid_t child = fork();
  if (child == 0) {
    post_to_processes("..");
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  loop.run_ready();
  ASSERT_EQ(told.size(), 2u);
  EXPECT_EQ(told[1], "..");
}

TEST_F(Notifications, AnObserverMayStop) {
  observe_processes(this, "once", [this] {
    told.push_back("once");
    stop_observing_processes(this, "once");
  });
  post_to_processes("once");
  loop.run_ready();
  post_to_processes("once");
  loop.run_ready();
  EXPECT_EQ(told.size(), 1u);
}

TEST_F(Notifications, ObserversThatComeAfterTheLastHasGoneAreTold) {
  observe("first");
  stop_observing_processes(this, "first");
  fs::remove_all(root);
  observe("second");
  post_to_processes("first");
  post_to_processes("second");
  loop.run_ready();
  EXPECT_EQ(told, std::vector<std::string>{"second"});
}

TEST_F(Notifications, AnObserverMayMakeRoomForAnother) {
  observe_processes(this, "once", [this] {
    stop_observing_processes(this, "once");
    observe("next");
  });
  post_to_processes("once");
  loop.run_ready();
  post_to_processes("next");
  loop.run_ready();
  EXPECT_EQ(told, std::vector<std::string>{"next"});
}

}  // namespace
