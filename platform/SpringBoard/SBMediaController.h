#pragma once

#include "platform/Foundation/NSObject.h"

/// The home screen's control over the player.
struct SBMediaController : objc::Bound<SBMediaController, "SBMediaController", NSObject> {
  static SBMediaController sharedInstance() {
    return call_class<"sharedInstance", SBMediaController>();
  }
  BOOL isPlaying() const { return call<"isPlaying", BOOL>(); }
  BOOL isPaused() const { return call<"isPaused", BOOL>(); }
  /// Whether a song is loaded, playing or paused.
  BOOL hasTrack() const { return call<"hasTrack", BOOL>(); }
  /// If nothing is loaded, plays the last queue or else the whole library. Returns NO if there is
  /// nothing to play.
  BOOL togglePlayPause() const { return call<"togglePlayPause", BOOL>(); }
  /// 1 is the next song, -1 the previous one. Returns NO if nothing is loaded.
  BOOL changeTrack(int direction) const { return call<"changeTrack:", BOOL>(direction); }
  /// From 0 to 1.
  float volume() const { return call<"volume", float>(); }
  void setVolume(float volume) const { call<"setVolume:">(volume); }
  /// What the volume buttons do. The result is clamped to 0 and 1.
  void _changeVolumeBy(float step) const { call<"_changeVolumeBy:">(step); }
  /// Sent by the system whenever the volume has changed.
  void _systemVolumeChanged(objc::Object notification) const {
    call<"_systemVolumeChanged:">(notification);
  }
};
