#pragma once

#include <chrono>

#include "host/media/folder_watch.h"

namespace host::media {

// When the next scan of watched folders is due. It waits until the changes have settled, but not
// for ever, and rests between two scans, so that folders which change all the time are not scanned
// all the time.
class ScanPace {
 public:
  using Milliseconds = std::chrono::milliseconds;
  static constexpr Milliseconds between_blind_scans{60'000};

  // `wake_descriptor` becomes readable when waiting must end; `watch` is null when nothing is
  // watched. Where not all folders can be watched, a scan is due after `blind_wait` at the latest.
  ScanPace(int wake_descriptor, FolderWatch* watch, Milliseconds blind_wait = between_blind_scans)
      : wake_(wake_descriptor), watch_(watch), blind_wait_(blind_wait) {}

  // Waits, after a scan that took `scan_took`, until another one is due or `wake` is readable.
  void wait(Milliseconds scan_took);

 private:
  enum class News { woken, changes, none };

  News wait_for_news(Milliseconds longest);
  bool rest(Milliseconds time);
  void let_settle();

  int wake_;
  FolderWatch* watch_;
  Milliseconds blind_wait_;
};

}  // namespace host::media
