#include "host/home_screen/progress_lines.h"

#include "host/runtime/log.h"
#include "host/runtime/progress_line.h"

namespace host::launcher {
namespace {

using media_player::MediaProgress;
using Stage = MediaProgress::Stage;

// Work that is shorter is over before anyone asks how far it is.
constexpr std::size_t kNotWorthALine = 1000;
constexpr std::size_t kLines = 4;
// While it is not known how many files there are.
constexpr std::size_t kFilesBetweenTexts = 100;

const char* name_of(Stage stage) {
  return stage == Stage::kMakingMusic ? "making the demo music" : "reading music";
}

}  // namespace

void ProgressLines::operator()(const MediaProgress& progress) {
  if (progress.stage == Stage::kReady) {
    say_result(progress);
  } else if (has_terminal_) {
    rewrite_line(progress);
  } else if (progress.stage == Stage::kMakingMusic || progress.all() >= kNotWorthALine) {
    say_part(progress);
  }
}

void ProgressLines::rewrite_line(const MediaProgress& progress) {
  const std::size_t done = progress.done();
  const std::size_t all = progress.all();
  std::string text = all ? fmt::format("{}: {} % of {}", name_of(progress.stage), done * 100 / all,
                                       in_thousands(all))
                         : fmt::format("{}: {}", name_of(progress.stage),
                                       in_thousands(done - done % kFilesBetweenTexts));
  if (text == shown_) return;
  shown_ = std::move(text);
  show_progress_line(shown_);
}

void ProgressLines::say_part(const MediaProgress& progress) {
  const std::size_t done = progress.done();
  const std::size_t all = progress.all();
  const std::size_t part = all ? done * kLines / all : 0;
  if (done < said_) said_ = 0;
  if (part == 0 || (said_ != 0 && part <= said_ * kLines / all)) return;
  said_ = done;
  spdlog::info("{}: {} of {}", name_of(progress.stage), done, all);
}

void ProgressLines::say_result(const MediaProgress& progress) {
  end_progress_line();
  shown_.clear();
  std::string result =
      fmt::format("{} songs ({} files skipped)", progress.songs, progress.files.skipped);
  if (result == result_) return;
  result_ = std::move(result);
  spdlog::info(result_);
}

std::string in_thousands(std::size_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3; at -= 3)
    digits.insert(at - 3, ",");
  return digits;
}

}  // namespace host::launcher
