#pragma once

#include "platform/MediaPlayer/MPMediaQuery.h"

// Posted after the system player's state or its song has changed.
extern "C" {
extern NSString MPMusicPlayerControllerPlaybackStateDidChangeNotification;
extern NSString MPMusicPlayerControllerNowPlayingItemDidChangeNotification;
}

enum MPMusicPlaybackState : NSInteger {
  MPMusicPlaybackStateStopped,
  MPMusicPlaybackStatePlaying,
  MPMusicPlaybackStatePaused,
  MPMusicPlaybackStateInterrupted,
  MPMusicPlaybackStateSeekingForward,
  MPMusicPlaybackStateSeekingBackward,
};

// Of `repeatMode` and `shuffleMode`. The default is what the user has chosen.
enum MPMusicRepeatMode : NSInteger {
  MPMusicRepeatModeDefault,
  MPMusicRepeatModeNone,
  MPMusicRepeatModeOne,
  MPMusicRepeatModeAll,
};

enum MPMusicShuffleMode : NSInteger {
  MPMusicShuffleModeDefault,
  MPMusicShuffleModeOff,
  MPMusicShuffleModeSongs,
  MPMusicShuffleModeAlbums,
};

struct MPMusicPlayerController
    : objc::Bound<MPMusicPlayerController, "MPMusicPlayerController", NSObject> {
  /// The player of the system's own Music application.
  static MPMusicPlayerController iPodMusicPlayer() {
    return call_class<"iPodMusicPlayer", MPMusicPlayerController>();
  }
  void setQueueWithQuery(MPMediaQuery query) const { call<"setQueueWithQuery:">(query); }
  MPMediaItem nowPlayingItem() const { return call<"nowPlayingItem", MPMediaItem>(); }
  void setNowPlayingItem(MPMediaItem item) const { call<"setNowPlayingItem:">(item); }
  MPMusicPlaybackState playbackState() const {
    return call<"playbackState", MPMusicPlaybackState>();
  }
  void prepareToPlay() const { call<"prepareToPlay">(); }
  void play() const { call<"play">(); }
  void pause() const { call<"pause">(); }
  void stop() const { call<"stop">(); }
  double currentPlaybackTime() const { return call<"currentPlaybackTime", double>(); }
  void setCurrentPlaybackTime(double seconds) const { call<"setCurrentPlaybackTime:">(seconds); }
  /// Sent by the system whenever the state changes.
  void _playbackStateDidChange(NSInteger state) const { call<"_playbackStateDidChange:">(state); }
};
