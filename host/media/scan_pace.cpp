#include "host/media/scan_pace.h"

#include <poll.h>

#include <algorithm>

namespace host::media {
namespace {

using std::chrono::steady_clock;
using Milliseconds = ScanPace::Milliseconds;

constexpr Milliseconds for_ever{-1};
constexpr Milliseconds shortest_rest{200};
constexpr Milliseconds longest_rest{1000};
constexpr int rest_per_scan = 2;  // Times as long as the scan took.
// Reports are read this often at most, whatever their number.
constexpr Milliseconds between_reads{100};
constexpr Milliseconds quiet{200};
constexpr Milliseconds longest_unrest{800};

}  // namespace

void ScanPace::wait(Milliseconds scan_took) {
  if (rest(std::clamp(scan_took * rest_per_scan, shortest_rest, longest_rest))) return;
  for (;;) {
    const bool is_blind = watch_ && !watch_->sees_everything();
    switch (wait_for_news(is_blind ? blind_wait_ : for_ever)) {
      case News::woken:
        return;
      case News::none:
        if (is_blind) return;
        break;
      case News::changes:
        if (watch_->take_changes()) return let_settle();
        if (rest(between_reads)) return;
        break;
    }
  }
}

ScanPace::News ScanPace::wait_for_news(Milliseconds longest) {
  pollfd waiting[] = {{wake_, POLLIN, 0}, {watch_ ? watch_->descriptor() : -1, POLLIN, 0}};
  ::poll(waiting, std::size(waiting), static_cast<int>(longest.count()));
  if (waiting[0].revents) return News::woken;
  return waiting[1].revents ? News::changes : News::none;
}

// Returns true when it is woken.
bool ScanPace::rest(Milliseconds time) {
  pollfd waiting{wake_, POLLIN, 0};
  return ::poll(&waiting, 1, static_cast<int>(time.count())) > 0;
}

void ScanPace::let_settle() {
  const auto end = steady_clock::now() + longest_unrest;
  while (steady_clock::now() < end) {
    if (wait_for_news(quiet) != News::changes || rest(between_reads)) return;
    watch_->take_changes();
  }
}

}  // namespace host::media
