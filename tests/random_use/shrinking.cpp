#include "tests/random_use/shrinking.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>

namespace random_use {
namespace {

using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

constexpr std::string_view kAdvance = "advance ";

bool is_pause(const std::string& line) {
  return line.starts_with(kAdvance);
}

/// Merges successive pauses into one.
Lines with_whole_pauses(const Lines& lines) {
  Lines made;
  for (const std::string& line : lines) {
    if (!made.empty() && is_pause(line) && is_pause(made.back())) {
      const auto seconds = [](const std::string& pause) {
        return std::stod(pause.substr(kAdvance.size()));
      };
      made.back() = fmt::format("{}{:.6g}", kAdvance, seconds(made.back()) + seconds(line));
    } else {
      made.push_back(line);
    }
  }
  return made;
}

class Shrinking {
 public:
  Shrinking(Story story, ShrinkingOptions options)
      : story_(std::move(story)),
        is_drawn_(options.is_drawn),
        end_(Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                std::chrono::duration<double>(options.seconds))) {}

  bool has_time() const { return Clock::now() < end_; }
  /// Replaces the lines if the new ones reproduce the fault too; returns whether they do.
  bool take(const Lines& lines) {
    auto played = replayed(lines, story_.fault.kind, is_drawn_);
    if (!played) return false;
    lines_ = with_whole_pauses(lines);
    story_ = std::move(*played);
    return true;
  }
  const Lines& lines() const { return lines_; }
  Story story() { return std::move(story_); }

  /// Removes smaller and smaller parts of the lines, until every single line is needed.
  void leave_out() {
    for (std::size_t size = std::max<std::size_t>(lines_.size() / 2, 1); has_time(); size /= 2) {
      bool any = true;
      while (any && has_time())
        any = leave_out_parts_of(size) && size == 1;
      if (size <= 1) return;
    }
  }

 private:
  bool leave_out_parts_of(std::size_t size) {
    bool any = false;
    // From the end: late lines are needed most often, but without one of them, the lines that lead
    // to it are not needed either.
    for (std::size_t end = lines_.size(); end > 0 && has_time();) {
      const std::size_t start = end > size ? end - size : 0;
      Lines fewer = lines_;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(start),
                  fewer.begin() + static_cast<std::ptrdiff_t>(end));
      any |= take(fewer);
      end = start;
    }
    return any;
  }

  Story story_;
  Lines lines_;
  bool is_drawn_;
  Clock::time_point end_;
};

}  // namespace

std::optional<Story> replayed(const Lines& lines, const std::string& kind, bool is_drawn) {
  UsedPhone phone(is_drawn);
  for (const std::string& line : lines)
    phone.say(line);
  const auto fault = Oracle(phone).judge();
  if (!fault || fault->kind != kind) return std::nullopt;
  Lines played = phone.lines();
  played.insert(played.end(), fault->expectations.begin(), fault->expectations.end());
  return Story{*fault, played};
}

Story shrunk(Story story, const std::vector<std::size_t>& bursts, ShrinkingOptions options) {
  const Lines whole = story.lines;
  Shrinking shrinking(std::move(story), options);
  bool fails = false;
  for (std::size_t last = 1; !fails && last < bursts.size() && shrinking.has_time(); last *= 4) {
    const auto start = static_cast<std::ptrdiff_t>(bursts[bursts.size() - last]);
    fails = shrinking.take(Lines(whole.begin() + start, whole.end()));
  }
  if (!fails) fails = shrinking.take(whole);
  if (fails) shrinking.leave_out();
  return shrinking.story();
}

}  // namespace random_use
