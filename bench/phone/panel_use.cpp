#include "bench/phone/panel_use.h"

#include <unistd.h>

#include <string>

#include "platform/MediaPlayer/MPMediaQuery.h"
#include "platform/UIKit/UIScrollView.h"

namespace bench {

CGPoint offset_of(BenchPhone& phone, const char* view) {
  return global<UIScrollView>(phone, view).contentOffset();
}

void open_page(BenchPhone& phone, int page) {
  phone.run("print [container setContentOffset:{" + std::to_string(page * 375) + ", 0}]");
  phone.run("advance 1");
}

void fling(BenchPhone& phone, Stopwatch& watch, Series& series, const char* view) {
  constexpr double kStep = 45;
  constexpr int kFrames = 7;
  constexpr int kMostGlideFrames = 400;
  CGPoint finger{187, 380};
  using host::screen::TouchPhase;
  watch.frame(series, [&] { phone.touch(TouchPhase::Began, finger); });
  for (int i = 0; i < kFrames; ++i) {
    finger.y -= kStep;
    watch.frame(series, [&] { phone.touch(TouchPhase::Moved, finger); });
  }
  watch.frame(series, [&] { phone.touch(TouchPhase::Ended, finger); });
  CGPoint before = offset_of(phone, view);
  for (int i = 0; i < kMostGlideFrames; ++i) {
    watch.frames(series, 1);
    const CGPoint now = offset_of(phone, view);
    if (now == before && i > 2) break;
    before = now;
  }
  phone.settle();
}

std::vector<NSUInteger> playable_songs(BenchPhone& phone) {
  std::vector<NSUInteger> found;
  NSString last_album;
  NSUInteger place = 0;
  for (const auto item : global<NSArray>(phone, "songItems").of<MPMediaItem>()) {
    const auto album = objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyAlbumTitle));
    if (album && !album.hasPrefix("Album "_ns) && !album.isEqualToString(last_album)) {
      last_album = album;
      found.push_back(place);
    }
    ++place;
  }
  require(found.size() >= 2, "there are songs to play");
  return found;
}

void play(BenchPhone& phone, NSUInteger place) {
  phone.run("print [musicPlayer setQueueWithQuery:fullList]");
  phone.run("print [musicPlayer setNowPlayingItem:[songItems objectAtIndex:" +
            std::to_string(place) + "]]");
  phone.run("print [musicPlayer play]");
  for (int i = 0; i < 20; ++i) {
    usleep(10'000);
    phone.turn();
  }
  phone.run("expect [mc isPlaying] == YES");
}

}  // namespace bench
