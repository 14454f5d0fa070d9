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

}  // namespace

void ProgressLines::operator()(const MediaProgress& progress) {
  const media::ScanProgress& files = progress.files;
  switch (progress.stage) {
    case Stage::kMakingMusic:
      return follow("making the demo music", static_cast<std::size_t>(progress.made),
                    static_cast<std::size_t>(progress.to_make));
    case Stage::kReadingFiles:
      return follow("reading music", files.seen, files.to_see);
    case Stage::kReady:
      return say_result(progress);
  }
}

void ProgressLines::follow(const std::string& work, std::size_t done, std::size_t all) {
  if (has_terminal_) {
    const std::size_t percent = all ? done * 100 / all : 0;
    std::string text =
        all ? fmt::format("{}: {} % of {}", work, percent, in_thousands(all))
            : fmt::format("{}: {}", work, in_thousands(done - done % kFilesBetweenTexts));
    if (text == shown_) return;
    shown_ = std::move(text);
    return show_progress_line(shown_);
  }
  if (all < kNotWorthALine && work == "reading music") return;
  const std::size_t part = all ? done * kLines / all : 0;
  if (done < said_) said_ = 0;
  if (part == 0 || (said_ != 0 && part <= said_ * kLines / all)) return;
  said_ = done;
  spdlog::info("{}: {} of {}", work, done, all);
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

std::optional<double> part_done(const MediaProgress& progress) {
  const bool is_reading = progress.stage == Stage::kReadingFiles;
  const double all = is_reading ? static_cast<double>(progress.files.to_see) : progress.to_make;
  const double done = is_reading ? static_cast<double>(progress.files.seen) : progress.made;
  if (all <= 0) return std::nullopt;
  return done / all;
}

std::string in_thousands(std::size_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3; at -= 3)
    digits.insert(at - 3, ",");
  return digits;
}

}  // namespace host::launcher
