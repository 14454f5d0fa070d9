#pragma once

#include "platform/Foundation/NSRunLoop.h"

struct CADisplayLink : objc::Bound<CADisplayLink, "CADisplayLink", NSObject> {
  /// `selector` takes the link. The target is retained until the link is invalidated.
  static CADisplayLink displayLinkWithTarget(objc::Object target, objc::Sel selector) {
    return call_class<"displayLinkWithTarget:selector:", CADisplayLink>(target, selector);
  }
  void addToRunLoop(NSRunLoop loop, NSString mode) const {
    call<"addToRunLoop:forMode:">(loop, mode);
  }
  void removeFromRunLoop(NSRunLoop loop, NSString mode) const {
    call<"removeFromRunLoop:forMode:">(loop, mode);
  }
  void invalidate() const { call<"invalidate">(); }
  double timestamp() const { return call<"timestamp", double>(); }
  double duration() const { return call<"duration", double>(); }
  NSInteger frameInterval() const { return call<"frameInterval", NSInteger>(); }
  void setFrameInterval(NSInteger frames) const { call<"setFrameInterval:">(frames); }
  BOOL isPaused() const { return call<"isPaused", BOOL>(); }
  void setPaused(BOOL paused) const { call<"setPaused:">(paused); }
};
