#include "host/media/reading_marks.h"

#include <fmt/core.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

#include "host/media/log.h"
#include "host/media/mark_file.h"
#include "host/media/trial_process.h"

namespace host::media {
namespace {

// A fault may depend on what else the process has done, which a trial does not repeat.
constexpr std::uint32_t most_deaths = 3;

using Purpose = std::pair<Reading, std::string>;

class Marks {
 public:
  explicit Marks(const std::string& file) : file_(file) {}

  void examine(ReadingTrial trial) {
    std::vector<FileMark> marks = file_.marks();
    // What is left out already must not be read by a trial.
    std::ranges::sort(marks, {}, [](const FileMark& mark) {
      return std::tuple{mark.state != MarkState::left_out, mark.reading};
    });
    for (FileMark& mark : marks)
      examine(mark, trial);
  }

  std::optional<std::uint32_t> put(const Purpose& purpose, const FileStamp& stamp) {
    const auto place = take_place();
    if (!place) return std::nullopt;
    const auto& [reading, path] = purpose;
    const auto suspect = deaths_.find(purpose);
    const std::uint32_t deaths = suspect == deaths_.end() ? 0 : suspect->second;
    file_.write(
        {*place, MarkState::reading, static_cast<std::uint32_t>(reading), deaths, stamp, path});
    return place;
  }

  void remove(std::uint32_t place) {
    file_.clear(place);
    taken_.fetch_and(~(1u << place));
  }

  bool is_left_out(const Purpose& purpose, const FileStamp& stamp) const {
    const auto found = left_out_.find(purpose);
    return found != left_out_.end() && found->second == stamp;
  }

 private:
  void examine(FileMark& mark, ReadingTrial trial) {
    if (stamp_of_file(mark.path) != mark.stamp) return file_.clear(mark.place);
    const Purpose purpose{static_cast<Reading>(mark.reading), mark.path};
    if (mark.state == MarkState::reading) {
      ++mark.deaths;
      if (mark.deaths < most_deaths && survives(purpose, trial)) {
        deaths_[purpose] = mark.deaths;
        return file_.clear(mark.place);
      }
      mark.state = MarkState::left_out;
      file_.write(mark);
      log_warning(fmt::format(
          "{} is left out: the phone ended while reading it; replace it to try again", mark.path));
    }
    taken_.fetch_or(1u << mark.place);
    left_out_[purpose] = mark.stamp;
  }

  bool survives(const Purpose& purpose, ReadingTrial trial) {
    return process_survives([&] {
      // The marks belong to the process that waits.
      file_.close();
      trial(purpose.first, purpose.second);
    });
  }

  std::optional<std::uint32_t> take_place() {
    for (std::uint32_t taken = taken_.load();;) {
      const auto place = static_cast<std::uint32_t>(std::countr_one(taken));
      if (place == MarkFile::places) return std::nullopt;
      if (taken_.compare_exchange_weak(taken, taken | 1u << place)) return place;
    }
  }

  MarkFile file_;
  std::map<Purpose, FileStamp> left_out_;
  std::map<Purpose, std::uint32_t> deaths_;
  std::atomic<std::uint32_t> taken_ = 0;  // A bit for each place.
};
static_assert(MarkFile::places == 32);

std::unique_ptr<Marks>& kept() {
  static auto* const marks = new std::unique_ptr<Marks>;
  return *marks;
}

}  // namespace

void keep_reading_marks(const std::string& file, ReadingTrial trial) {
  kept().reset();
  if (file.empty()) return;
  kept() = std::make_unique<Marks>(file);
  kept()->examine(trial);
}

ReadingMark::ReadingMark(Reading reading, const std::string& path) {
  if (!kept()) return;
  const auto stamp = stamp_of_file(path);
  if (!stamp) return;
  const Purpose purpose{reading, path};
  may_read_ = !kept()->is_left_out(purpose, *stamp);
  if (may_read_) place_ = kept()->put(purpose, *stamp);
}

ReadingMark::~ReadingMark() {
  if (place_ && kept()) kept()->remove(*place_);
}

}  // namespace host::media
