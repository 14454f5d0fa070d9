#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <random>

#include "settings/preferences.h"
#include "tests/settings/settings_device.h"
#include "tests/support/host_test.h"

// Two processes write the preferences file as fast as they can and are killed while writing. With
// SONAVUE_KILLS=200 the test takes a minute.

namespace sonavue::test {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int kKills = 25;
constexpr int kLongestLife = 600;  // milliseconds
constexpr std::chrono::seconds kDeadline{10};
constexpr const char* kFile = "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";

int kills() {
  const char* wanted = std::getenv("SONAVUE_KILLS");
  return wanted ? std::atoi(wanted) : kKills;
}

bool comes_true(const std::function<bool()>& condition) {
  const auto end = steady_clock::now() + kDeadline;
  while (!condition()) {
    if (steady_clock::now() > end) return false;
  }
  return true;
}

/// A process that writes until it is killed.
class Writer {
 public:
  Writer(const fs::path& device, const char* role) : process_(fork()) {
    if (process_ == 0) {
      execl(PREFERENCES_WRITER, PREFERENCES_WRITER, device.c_str(), role, nullptr);
      _exit(127);
    }
    handle_ = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
  }
  ~Writer() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    close(handle_);
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  /// Whether it is still running after that time.
  bool lives_for(milliseconds time) const {
    pollfd end{handle_, POLLIN, 0};
    return poll(&end, 1, static_cast<int>(time.count())) == 0;
  }

 private:
  pid_t process_;
  int handle_;
};

class KilledWriters : public host::test::HostTest, public SettingsDevice {
 protected:
  KilledWriters() { write_dictionary(preferences(), text_entry("blur", "dark")); }

  /// Whether the file is complete and has the entry that no writer changes.
  static bool loads() {
    const objc::AutoreleasePool pool;
    const NSDictionary all =
        NSDictionary::dictionaryWithContentsOfFile(NSString::stringWithUTF8String(kFile));
    return all && objc::cast<NSString>(all.objectForKey("blur"_ns)).isEqualToString("dark"_ns);
  }
  bool is_alone() const {
    int count = 0;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(preferences().parent_path(), error)) {
      ++count;
      if (entry.path() != preferences()) return false;
    }
    return count == 1;
  }
  /// The value that the pane wrote last, to see that it makes progress.
  static std::string last_settings() {
    const objc::AutoreleasePool pool;
    const auto value = objc::cast<NSObject>(stored_value(PreferenceKey("setting-0"_ns)));
    return value ? value.description().UTF8String() : "";
  }
};

TEST_F(KilledWriters, NeverDamageTheFileOrLeaveAnother) {
  std::mt19937 random(6);
  std::uniform_int_distribution<int> life(0, kLongestLife);
  std::optional<Writer> pane(std::in_place, device, "pane");
  std::optional<Writer> home(std::in_place, device, "home");
  for (int number = 0; number < kills(); ++number) {
    const std::string before = last_settings();
    ASSERT_TRUE(comes_true([&] { return last_settings() != before; })) << "no process writes";
    const bool is_pane = random() % 2 == 0;
    auto& victim = is_pane ? pane : home;
    ASSERT_TRUE(victim->lives_for(milliseconds(life(random)))) << "the writer ended by itself";
    victim.reset();
    ASSERT_TRUE(loads()) << "after kill " << number;
    victim.emplace(device, is_pane ? "pane" : "home");
    ASSERT_TRUE(comes_true([&] { return is_alone(); })) << "after kill " << number;
  }
  pane.reset();
  home.reset();
  EXPECT_TRUE(loads());
  store("red"_ns, preference::tint());
  EXPECT_TRUE(is_alone());
}

}  // namespace
}  // namespace sonavue::test
