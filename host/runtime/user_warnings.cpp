#include "host/runtime/user_warnings.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

#include "host/basics/event_signal.h"
#include "host/basics/user_warning.h"

namespace host {
namespace {

// In seconds.
constexpr double kPause = 60;
// More different words in a minute are told to no one.
constexpr std::size_t kMostWords = 32;

struct Waiting {
  std::mutex mutex;
  std::vector<std::string> words;
  EventSignal signal;
};

// Never destroyed: other threads may warn until the process ends.
Waiting& waiting() {
  static auto* const made = new Waiting;
  return *made;
}

void take(std::string_view few_words) {
  Waiting& all = waiting();
  {
    const std::lock_guard lock(all.mutex);
    if (all.words.size() >= kMostWords || std::ranges::count(all.words, few_words) > 0) return;
    all.words.emplace_back(few_words);
  }
  all.signal.raise();
}

std::vector<std::string> taken() {
  Waiting& all = waiting();
  all.signal.clear();
  const std::lock_guard lock(all.mutex);
  return std::exchange(all.words, {});
}

}  // namespace

UserWarnings::UserWarnings(RunLoop& loop, Tell tell)
    : loop_(loop),
      tell_(std::move(tell)),
      watch_(loop.watch(waiting().signal.descriptor(), [this] { tell_waiting(); })) {
  user_warning = &take;
}

UserWarnings::~UserWarnings() {
  user_warning = nullptr;
  loop_.unwatch(watch_);
  taken();
}

void UserWarnings::tell_waiting() {
  const double now = loop_.now();
  std::erase_if(told_, [now](const auto& told) { return now - told.second >= kPause; });
  for (const std::string& words : taken()) {
    if (told_.size() < kMostWords && told_.emplace(words, now).second) tell_(words);
  }
}

}  // namespace host
