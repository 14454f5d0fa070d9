#pragma once

#include <vector>

#include "bench/phone/frame_series.h"
#include "platform/Foundation/NSString.h"

// What a user does with the open panel of a phone whose screen is stepped.

namespace bench {

/// The object in one of the extension's shared variables.
template <class T>
T global(BenchPhone& phone, const char* name) {
  return objc::cast<T>(phone.global(name));
}

/// The offset of a scroll view's content.
CGPoint offset_of(BenchPhone& phone, const char* view);
/// Page 0 has the player, 1 the songs, 2 the albums.
void open_page(BenchPhone& phone, int page);
/// Presses, drags and releases at full speed, and watches until the view is at rest.
void fling(BenchPhone& phone, Stopwatch& watch, Series& series, const char* view);
/// The places in the list of songs from different albums that can be played; the albums of those
/// that cannot are called "Album" and something.
std::vector<NSUInteger> playable_songs(BenchPhone& phone);
/// Plays the song at this place of the list.
void play(BenchPhone& phone, NSUInteger place);

}  // namespace bench
