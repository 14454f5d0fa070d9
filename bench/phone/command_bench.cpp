#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "bench/phone/large_library.h"
#include "bench/support/ratio.h"
#include "host/launcher/device_root.h"
#include "host/launcher/installation.h"
#include "host/launcher/throwaway_folder.h"

// Measures the program as a user starts it, without a window: the time from the command to the
// first picture, and what the home screen occupies once it is at rest. Both want an idle machine.

namespace {

namespace fs = std::filesystem;
using bench::LargeLibrary;
using bench::require;

constexpr int kStarts = 7;
constexpr int kDemoSongs = 40;
constexpr double kDemoStart = 0.4;
constexpr double kLargeStart = 0.6;
constexpr double kResident = 75;
constexpr double kPrivate = 35;
constexpr const char* kIndex = "var/mobile/Media/library.sqlite";

enum class Screen { kWindow, kNone };

/// A running phone and its console. One with a window is on the real clock.
class Command {
 public:
  Command(const fs::path& root, const std::vector<fs::path>& music, Screen screen) {
    int to_phone[2];
    int from_phone[2];
    require(::pipe(to_phone) == 0 && ::pipe(from_phone) == 0, "pipes");
    process_ = ::fork();
    if (process_ == 0) {
      ::dup2(to_phone[0], STDIN_FILENO);
      ::dup2(from_phone[1], STDOUT_FILENO);
      for (const int end : {to_phone[0], to_phone[1], from_phone[0], from_phone[1]})
        ::close(end);
      run(root, music, screen);
    }
    ::close(to_phone[0]);
    ::close(from_phone[1]);
    questions_ = ::fdopen(to_phone[1], "w");
    answers_ = ::fdopen(from_phone[0], "r");
  }
  ~Command() {
    std::fclose(questions_);
    int status = 1;
    require(::waitpid(process_, &status, 0) == process_ && status == 0, "the end of the phone");
    std::fclose(answers_);
  }
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;

  std::string ask(const char* line) {
    std::fprintf(questions_, "%s\n", line);
    std::fflush(questions_);
    std::array<char, 4096> answer{};
    require(std::fgets(answer.data(), answer.size(), answers_) != nullptr, line);
    require(std::string_view(answer.data()).find("error") != 0, answer.data());
    return answer.data();
  }

  /// A figure of the home screen's memory, in MB.
  double memory(const std::string& name) const {
    std::ifstream rollup("/proc/" + home_screen() + "/smaps_rollup");
    for (std::string word; rollup >> word;) {
      double kilobytes = 0;
      if (word == name + ":" && rollup >> kilobytes) return kilobytes * 1024 / 1e6;
    }
    require(false, name);
    return 0;
  }

 private:
  [[noreturn]] static void run(const fs::path& root, const std::vector<fs::path>& music,
                               Screen screen) {
    ::setenv("SDL_VIDEODRIVER", "dummy", 1);
    // The phone must not appear on the message bus of this desktop.
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    const fs::path program =
        host::launcher::find_installation().home_screen.parent_path() / "sonavue";
    std::vector<std::string> words{program, "--console", "--root", root};
    if (screen == Screen::kNone) words.emplace_back("--headless");
    if (!music.empty()) words.emplace_back("--music");
    words.insert(words.end(), music.begin(), music.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
      arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ::execv(program.c_str(), arguments.data());
    std::_Exit(EXIT_FAILURE);
  }

  std::string home_screen() const {
    const std::string own = std::to_string(process_);
    std::ifstream children("/proc/" + own + "/task/" + own + "/children");
    for (std::string child; children >> child;) {
      std::string name;
      if (std::getline(std::ifstream("/proc/" + child + "/comm"), name) && name == "SpringBoard")
        return child;
    }
    require(false, "a home screen");
    return {};
  }

  pid_t process_ = 0;
  FILE* questions_ = nullptr;
  FILE* answers_ = nullptr;
};

double seconds_to_first_picture(const fs::path& root, const bench::Music& music) {
  std::optional<Command> phone;
  const double seconds = bench::seconds_for([&] {
    phone.emplace(root, music.folders, Screen::kWindow);
    // The next frame is painted before this is answered.
    phone->ask("advance 0.02");
  });
  const std::string songs = phone->ask("print [songItems count]");
  require(std::atoi(songs.c_str()) >= kDemoSongs, "the songs: " + songs);
  return seconds;
}

void measure_starts(const char* name, const fs::path& root, const bench::Music& music,
                    double allowed) {
  require(!host::launcher::prepare_device_root(root), "a device");
  fs::create_directories((root / kIndex).parent_path());
  music.remember(root / kIndex);
  // A new device is filled by its first start.
  seconds_to_first_picture(root, music);
  std::vector<double> seconds;
  for (int i = 0; i < kStarts; ++i)
    seconds.push_back(seconds_to_first_picture(root, music));
  bench::print_ratio(name, bench::summary(seconds).median, allowed, 1);
}

void print_memory(const char* name, double megabytes, double most) {
  std::printf("at rest: %.1f MB %s   (aim: at most %g)%s\n", megabytes, name, most,
              megabytes <= most ? "" : "   MISSED");
}

void measure_rest(const fs::path& root, const bench::Music& music) {
  Command phone(root, music.folders, Screen::kNone);
  phone.ask("advance 5");
  phone.ask("rest");
  print_memory("resident", phone.memory("Rss"), kResident);
  print_memory("of the home screen's own", phone.memory("Private_Dirty"), kPrivate);
}

}  // namespace

int main() {
  const LargeLibrary library;
  const host::launcher::ThrowawayFolder folder;
  const fs::path demo_root = folder.path() / "demo";
  const fs::path large_root = folder.path() / "large";
  measure_starts("command to picture, demo music / 0.4 s", demo_root, library.demo(), kDemoStart);
  measure_starts("command to picture, 100,000 songs / 0.6 s", large_root, library.music(),
                 kLargeStart);
  measure_rest(demo_root, library.demo());
}
