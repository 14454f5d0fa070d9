#include "tests/random_use/used_phone.h"

#include <fmt/format.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace random_use {
namespace {

constexpr int kSongCount = 6;
constexpr double kSongLength = 4;
constexpr double kMegabyte = 1 << 20;
// How long the finger of a tap is down, in seconds.
constexpr double kTap = 0.05;

/// Creates the songs before the phone starts, because it searches for them only once.
std::string with_songs(const std::string& device) {
  put_songs_on(device);
  return device;
}

std::vector<std::string> words_of(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;)
    words.push_back(word);
  return words;
}

double seconds_of(const std::vector<std::string>& words) {
  if (words.front() == "advance" || words.front() == "drag") return std::stod(words.back());
  return words.front() == "tap" ? kTap : 0;
}

}  // namespace

void put_songs_on(const std::string& device) {
  const std::filesystem::path folder = device + kSongs;
  std::filesystem::create_directories(folder);
  for (int number = 0; number < kSongCount; ++number) {
    host::media::SongTags tags;
    tags.title = fmt::format("Song {}", number);
    tags.artist = number % 2 ? "Anna" : "Bert";
    tags.album = fmt::format("Album {}", number / 2);
    media_tests::write_song(folder / fmt::format("{}.flac", number), tags,
                            media_tests::jpeg_picture(200, 200, 0x3060a0u * (number + 1u)),
                            kSongLength);
  }
}

UsedPhone::UsedPhone(bool is_drawn)
    : phone_({"--headless", is_drawn ? "--headless" : "--blind", "--console", "--root",
              with_songs(folder_ / "device"), "--music", folder_ / "device" + kSongs},
             launcher_e2e::Hardship::kOrdinaryUser) {}

std::string UsedPhone::say(const std::string& line) {
  if (prints_lines_) fmt::print("{:.2f} {}\n", seconds_, line);
  const std::string answer = phone_.ask(line);
  if (!answer.starts_with("error: ") && !answer.starts_with('(')) note(line);
  return answer;
}

std::string UsedPhone::ask(const std::string& line) {
  return phone_.ask(line);
}

void UsedPhone::wait(double seconds) {
  say(fmt::format("advance {}", seconds));
}

/// In `touch moved 1 2` the finger is unnamed; in `touch 2 moved 1 2` it is named.
void UsedPhone::note(const std::string& line) {
  lines_.push_back(line);
  const auto words = words_of(line);
  seconds_ += seconds_of(words);
  if (words.front() == "touch") {
    const bool is_named = words[2] != "on" && std::isalpha(words[2].front());
    const std::string finger = is_named ? words[1] : "1";
    const std::string& phase = is_named ? words[2] : words[1];
    if (phase == "began") fingers_.insert(finger);
    if (phase == "ended" || phase == "cancelled") fingers_.erase(finger);
  }
  if (words.front() == "button" && words.back() == "down") buttons_.insert(words[1]);
  if (words.front() == "button" && words.back() == "up") buttons_.erase(words[1]);
}

std::string UsedPhone::fault() {
  const std::string& errors = phone_.errors();
  const std::size_t start = std::exchange(errors_read_, errors.size());
  const std::string_view news = std::string_view(errors).substr(start);
  for (const char* sign : {"AddressSanitizer", "runtime error:", "SpringBoard ended", "called as",
                           "hung", "did not come to rest", "does not answer", "floods"}) {
    const auto place = news.find(sign);
    if (place == news.npos || expected_.contains(sign)) continue;
    const auto begin = news.rfind('\n', place);
    const std::size_t first = begin == news.npos ? 0 : begin + 1;
    return std::string(news.substr(first, news.find('\n', place) - first));
  }
  return {};
}

void UsedPhone::has_restarted(pid_t before) {
  phone_.wait_for_home_screen_after(before);
  fingers_.clear();
  buttons_.clear();
}

std::optional<double> UsedPhone::memory() {
  const auto read = [this]() -> std::optional<double> {
    double all = 0;
    double resident = 0;
    std::ifstream stream(fmt::format("/proc/{}/statm", process_));
    if (!(stream >> all >> resident)) return std::nullopt;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / kMegabyte;
  };
  if (const auto known = process_ ? read() : std::nullopt) return known;
  process_ = phone_.home_screen();
  return process_ ? read() : std::nullopt;
}

}  // namespace random_use
