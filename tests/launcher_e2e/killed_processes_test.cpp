#include <poll.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <set>

#include "tests/launcher_e2e/phone_test.h"

// A phone is used while its processes are killed at random moments. With SONAVUE_KILLS=500 the test
// takes a quarter of an hour and prints the longest time that the phone was away.

namespace {

using namespace launcher_e2e;
using std::chrono::steady_clock;

constexpr int kKills = 6;
/// The launcher gives up after more restarts of the home screen within a minute.
constexpr int kMostRestarts = 5;
constexpr int kLongestWait = 150;  // milliseconds

constexpr const char* kFile = "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
constexpr const char* kEvent = "[LAEvent eventWithName:@\"shake\" mode:@\"springboard\"]";
constexpr const char* kListener = "org.plumvane.Sonavue2";

/// What a user does, in this order and from the beginning again.
constexpr const char* kUse[] = {
    "drag 57 332 157 232 0.5",
    "advance 1.4",
    "tap on play",
    "advance 1",
    "tap on next",
    "button volume-up",
    "advance 1",
    "button home",
    "advance 2",
    "system open com.apple.Music",
    "advance 1",
    "tap 187 90",
    "advance 1",
    "button home",
    "advance 1",
    "system open com.apple.Preferences",
    "advance 1",
    "tap 100 293",
    "advance 1",
    "button home",
    "advance 1",
    "gesture shake",
    "advance 1.5",
    "button home",
    "advance 1.5",
};

/// One of two more writes the preferences, the other an assignment.
constexpr std::size_t kSteps = std::size(kUse) + 2;

int kills() {
  const char* wanted = std::getenv("SONAVUE_KILLS");
  return wanted ? std::atoi(wanted) : kKills;
}

/// A value that is kept on the device. A write that has not been answered may or may not have
/// happened.
template <class Value>
class Kept {
 public:
  explicit Kept(Value first) : possible_{first} {}

  void is_being_written(Value value) { possible_.insert(value); }
  void is_written(Value value) { possible_ = {value}; }
  bool can_be(const Value& value) const { return possible_.contains(value); }
  void is(Value value) { possible_ = {value}; }

 private:
  std::set<Value> possible_;
};

class KilledProcesses : public PhoneTest {
 protected:
  KilledProcesses() {
    fs::create_directories(temporary());
    setenv("TMPDIR", temporary().c_str(), 1);
  }
  ~KilledProcesses() override { unsetenv("TMPDIR"); }

  fs::path temporary() const { return folder() / "temporary"; }

  /// Uses one phone until everything has been done once, and its processes have been killed `left`
  /// times or as often as the launcher allows.
  void use_and_kill(int& left) {
    RunningPhone phone(headless({"--console", "--blind"}));
    ASSERT_EQ(phone.ask("print isShow"), "NO") << phone.errors();
    look_at_what_is_kept(phone);
    int restarts = 0;
    for (std::size_t step = 0; step < kSteps || (left > 0 && restarts < kMostRestarts); ++step) {
      const std::string line = next_line(step);
      ASSERT_TRUE(phone.say(line));
      if (left == 0 || restarts == kMostRestarts || random_() % 4 != 0) {
        was_answered(line, phone.next_answer());
        continue;
      }
      poll(nullptr, 0, static_cast<int>(random_() % kLongestWait));
      const pid_t home_screen = phone.home_screen();
      const pid_t killed = some_process(phone);
      ASSERT_NE(killed, 0) << phone.errors();
      const auto before = steady_clock::now();
      kill(killed, SIGKILL);
      --left;
      restarts += killed == home_screen;
      if (killed == home_screen) {
        ASSERT_NE(phone.wait_for_home_screen_after(home_screen), 0);
      }
      was_answered(line, phone.next_answer());
      const std::string answer = phone.ask("print isShow");
      ASSERT_TRUE(answer == "NO" || answer == "YES") << answer << phone.errors();
      away_ = std::max(away_, steady_clock::now() - before);
      ASSERT_NO_FATAL_FAILURE(look_at_what_is_kept(phone));
    }
    EXPECT_EQ(phone.ask("quit"), "ok");
    EXPECT_EQ(phone.wait_for_end(), 0);
  }

  static std::set<fs::path> files_of(const fs::path& device) {
    std::set<fs::path> found;
    for (const auto& entry : fs::recursive_directory_iterator(device)) {
      if (entry.is_regular_file()) found.insert(entry.path().lexically_relative(device));
    }
    return found;
  }

  steady_clock::duration away_{};

 private:
  std::string next_line(std::size_t step) {
    const std::size_t place = step % kSteps;
    if (place == std::size(kUse)) {
      number_.is_being_written(++last_number_);
      return "expect [[@\"{enable = YES; cover = YES; number = " + std::to_string(last_number_) +
             ";}\" propertyList] writeToFile:@\"" + kFile + "\" atomically:YES] == YES";
    }
    if (place > std::size(kUse)) {
      assigning_ = !assigning_;
      is_assigned_.is_being_written(assigning_);
      return std::string("print [[LAActivator sharedInstance] ") +
             (assigning_ ? "assignEvent:" : "unassignEvent:") + kEvent +
             (assigning_ ? " toListenerWithName:@\"" : " fromListenerWithName:@\"") + kListener +
             "\"]";
    }
    return kUse[place];
  }

  void was_answered(const std::string& line, const std::string& answer) {
    if (answer.starts_with("error: ") || answer.starts_with('(')) return;
    if (line.find(kFile) != line.npos) number_.is_written(last_number_);
    if (line.find("ssignEvent:") != line.npos) is_assigned_.is_written(assigning_);
  }

  void look_at_what_is_kept(RunningPhone& phone) {
    const std::string number =
        phone.ask(std::string("print [[NSDictionary dictionaryWithContentsOfFile:@\"") + kFile +
                  "\"] objectForKey:@\"number\"]");
    const auto digits = std::min(number.find_first_of("0123456789"), number.size());
    const int read = std::atoi(number.c_str() + digits);
    ASSERT_TRUE(number_.can_be(read)) << "the preferences are " << number;
    number_.is(read);
    const std::string names = phone.ask(
        std::string("print [[[LAActivator sharedInstance] assignedListenerNamesForEvent:") +
        kEvent + "] containsObject:@\"" + kListener + "\"]");
    ASSERT_TRUE(names == "YES" || names == "NO") << names;
    ASSERT_TRUE(is_assigned_.can_be(names == "YES")) << "the assignment is " << names;
    is_assigned_.is(names == "YES");
    assigning_ = names == "YES";
  }

  pid_t some_process(const RunningPhone& phone) {
    constexpr const char* kPrograms[] = {"SpringBoard", "Music", "Preferences"};
    const std::size_t first = random_() % std::size(kPrograms);
    for (std::size_t i = 0; i < std::size(kPrograms); ++i) {
      if (const pid_t process = phone.child(kPrograms[(first + i) % std::size(kPrograms)]))
        return process;
    }
    return 0;
  }

  std::mt19937 random_{20};
  Kept<int> number_{0};
  int last_number_ = 0;
  Kept<bool> is_assigned_{false};
  bool assigning_ = false;
};

TEST_F(KilledProcesses, AreBackAndHaveLostNothing) {
  const std::set<fs::path> ordinary = [this] {
    int none = 0;
    use_and_kill(none);
    return files_of(root());
  }();
  ASSERT_FALSE(ordinary.empty());
  for (int left = kills(); left > 0 && !HasFatalFailure();)
    use_and_kill(left);
  const auto away = std::chrono::duration<double>(away_).count();
  std::printf("%d kills; the phone was away for at most %.2f s\n", kills(), away);

  // One more phone, which no one kills, removes what killed processes left behind.
  run_once();
  std::set<fs::path> litter;
  std::ranges::set_difference(files_of(root()), ordinary, std::inserter(litter, litter.end()));
  for (const fs::path& file : litter)
    ADD_FAILURE() << file << " was left on the device";
  EXPECT_TRUE(fs::is_empty(temporary())) << *fs::directory_iterator(temporary());
}

}  // namespace
