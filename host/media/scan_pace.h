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

  // Becomes readable when waiting must end; `watch` is null when nothing is watched.
  ScanPace(int wake_descriptor, FolderWatch* watch) : wake_(wake_descriptor), watch_(watch) {}

  // Waits, after a scan that took `scan_took`, until another one is due or `wake` is readable.
  void wait(Milliseconds scan_took);

 private:
  enum class News { woken, changes, none };

  News wait_for_news(Milliseconds longest);
  bool rest(Milliseconds time);
  void let_settle();

  int wake_;
  FolderWatch* watch_;
};

}  // namespace host::media
