#pragma once

#include "platform/Foundation/NSObject.h"

/// The home screen's hand on whatever plays.
struct SBMediaController : objc::Bound<SBMediaController, "SBMediaController", NSObject> {
  static SBMediaController sharedInstance() {
    return call_class<"sharedInstance", SBMediaController>();
  }
  BOOL isPlaying() const { return call<"isPlaying", BOOL>(); }
  BOOL isPaused() const { return call<"isPaused", BOOL>(); }
  /// Is a song loaded, playing or not?
  BOOL hasTrack() const { return call<"hasTrack", BOOL>(); }
  /// With nothing loaded it plays the last queue, or the whole library. NO when there is nothing to
  /// play.
  BOOL togglePlayPause() const { return call<"togglePlayPause", BOOL>(); }
  /// 1 is the next song, -1 the one before. NO when nothing is loaded.
  BOOL changeTrack(int direction) const { return call<"changeTrack:", BOOL>(direction); }
  /// 0 to 1.
  float volume() const { return call<"volume", float>(); }
  void setVolume(float volume) const { call<"setVolume:">(volume); }
  /// What the volume buttons do; cut to 0 and 1.
  void _changeVolumeBy(float step) const { call<"_changeVolumeBy:">(step); }
  /// Told by the system whenever the volume changed.
  void _systemVolumeChanged(objc::Object notification) const {
    call<"_systemVolumeChanged:">(notification);
  }
};
