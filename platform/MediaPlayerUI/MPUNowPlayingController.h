#pragma once

#include "platform/Foundation/NSDictionary.h"
#include "platform/MediaPlayerUI/MediaPlayerUI.h"
#include "platform/UIKit/UIImage.h"

/// The song that is playing now, as the system's own controls show it.
struct MPUNowPlayingController : objc::Bound<MPUNowPlayingController, "MPUNowPlayingController",
                                             NSObject, kMediaPlayerUIImage> {
  UIImage currentNowPlayingArtwork() const { return call<"currentNowPlayingArtwork", UIImage>(); }
  /// Keys "kMRMediaRemoteNowPlayingInfoTitle", "…Artist", "…Album"; strings.
  NSDictionary currentNowPlayingInfo() const {
    return call<"currentNowPlayingInfo", NSDictionary>();
  }
  /// In seconds. It changes only when the player reports a new song, a seek or a resume.
  double currentElapsed() const { return call<"currentElapsed", double>(); }
  /// In seconds; 0 when unknown.
  double currentDuration() const { return call<"currentDuration", double>(); }
};
