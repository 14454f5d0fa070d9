#include <fmt/format.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <map>

#include "tests/random_use/panel_reading.h"
#include "tests/random_use/random_user.h"
#include "tests/support/media_fixtures.h"

// Uses a phone at random for a while of its own clock and looks after every pause whether the panel
// is where it says: `random_use SEED SECONDS [aloud]`. Ends with 1 at the first fault, having said
// how to see it again; aloud it tells the console's lines.

namespace {

using namespace random_use;
using launcher_e2e::RunningPhone;

// Few enough that the panel is not closed again most of the time.
constexpr int kFewestActions = 1;
constexpr int kMostActions = 12;
constexpr int kSongs = 6;

struct Music {
  explicit Music(const std::filesystem::path& folder) : path(folder) {
    std::filesystem::create_directories(path);
    for (int number = 0; number < kSongs; ++number) {
      host::media::SongTags tags;
      tags.title = fmt::format("Song {}", number);
      tags.artist = number % 2 ? "Anna" : "Bert";
      tags.album = fmt::format("Album {}", number / 2);
      media_tests::write_song(path / fmt::format("{}.flac", number), tags,
                              media_tests::jpeg_picture(200, 200, 0x3060a0u * (number + 1u)), 4);
    }
  }
  std::filesystem::path path;
};

/// What went wrong with the process itself, as its error stream tells.
std::string fault_of(const RunningPhone& phone) {
  for (const char* sign :
       {"AddressSanitizer", "runtime error:", "SpringBoard ended", "called as", "hung"}) {
    if (phone.count_of_errors_with(sign)) return sign;
  }
  return {};
}

class Watch {
 public:
  Watch(RunningPhone& phone, RandomUser& user) : phone_(phone), user_(user) {}

  /// The first fault of the process or of the panel, which has come to rest; empty when all is
  /// well.
  std::string look() {
    const auto reading = read_panel(phone_);
    if (const std::string fault = fault_of(phone_); !fault.empty()) return fault;
    if (!reading) return "the phone does not answer";
    ++pauses_;
    ++seen_[rest_of(*reading)];
    if (const std::string text = contradiction(*reading); !text.empty())
      return fmt::format("{}: {}", name_of(rest_of(*reading)), text);
    return {};
  }
  /// Two movements at once leave the panel where neither would have: all that is promised then is
  /// that the Home button puts it away.
  std::string look_after_haste() {
    user_.come_home();
    user_.rest();
    const auto reading = read_panel(phone_);
    if (reading && (reading->is_show || reading->is_banner))
      return fmt::format("{} after the Home button", name_of(rest_of(*reading)));
    return look();
  }
  void report() const {
    fmt::print("{} actions, {:.0f} s, {} pauses:", user_.actions(), user_.seconds(), pauses_);
    for (const auto& [rest, times] : seen_)
      fmt::print(" {} {},", name_of(rest), times);
    fmt::print(" no fault\n");
  }

 private:
  RunningPhone& phone_;
  RandomUser& user_;
  std::map<Rest, int> seen_;
  int pauses_ = 0;
};

int use(std::uint32_t seed, double seconds, bool aloud) {
  fmt::print("seed {}\n", seed);
  std::fflush(stdout);
  const media_tests::TemporaryFolder folder;
  const Music music(folder / "music");
  RunningPhone phone({"--headless", "--console", "--root", folder / "root", "--music", music.path});
  RandomUser user(phone, seed, folder / "root", music.path);
  if (aloud) user.say_aloud();
  user.prepare();
  Watch watch(phone, user);
  int round = 0;
  while (user.seconds() < seconds) {
    const bool calm = round++ % 2 == 0;
    user.begin_round(calm ? RandomUser::Mood::kCalm : RandomUser::Mood::kHasty);
    user.act_some(kFewestActions, kMostActions);
    user.rest();
    const std::string fault = calm ? watch.look() : watch.look_after_haste();
    if (fault.empty()) continue;
    fmt::print("{}\nafter {} actions, at {:.2f} s of seed {}; last line: {}\n{}\n", fault,
               user.actions(), user.seconds(), seed, user.last_line(), phone.errors());
    return 1;
  }
  watch.report();
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  std::uint32_t seed = 0;
  double seconds = 0;
  const auto read = [&](int index, auto& into) {
    if (index >= count) return false;
    const char* text = arguments[index];
    return std::from_chars(text, text + std::strlen(text), into).ec == std::errc();
  };
  if (!read(1, seed) || !read(2, seconds)) {
    std::fputs("usage: random_use SEED SECONDS [aloud]\n", stderr);
    return 2;
  }
  return use(seed, seconds, count > 3);
}
