#pragma once

#include "platform/Foundation/NSObject.h"

/// The home screen's hand on whatever plays.
struct SBMediaController : objc::Bound<SBMediaController, "SBMediaController", NSObject> {
  static SBMediaController sharedInstance() {
    return call_class<"sharedInstance", SBMediaController>();
  }
  BOOL isPlaying() const { return call<"isPlaying", BOOL>(); }
  BOOL togglePlayPause() const { return call<"togglePlayPause", BOOL>(); }
  /// 0 to 1.
  float volume() const { return call<"volume", float>(); }
  void setVolume(float volume) const { call<"setVolume:">(volume); }
  /// Told by the system whenever the volume changed.
  void _systemVolumeChanged(objc::Object notification) const {
    call<"_systemVolumeChanged:">(notification);
  }
};
