#pragma once

#include "platform/QuartzCore/CAMediaTiming.h"
#include "platform/QuartzCore/CAMediaTimingFunction.h"

struct CAAnimation : objc::Bound<CAAnimation, "CAAnimation", NSObject> {
  static CAAnimation animation() { return call_class<"animation", CAAnimation>(); }

  double beginTime() const { return call<"beginTime", double>(); }
  void setBeginTime(double time) const { call<"setBeginTime:">(time); }
  double duration() const { return call<"duration", double>(); }
  void setDuration(double duration) const { call<"setDuration:">(duration); }
  float speed() const { return call<"speed", float>(); }
  void setSpeed(float speed) const { call<"setSpeed:">(speed); }
  double timeOffset() const { return call<"timeOffset", double>(); }
  void setTimeOffset(double offset) const { call<"setTimeOffset:">(offset); }
  float repeatCount() const { return call<"repeatCount", float>(); }
  void setRepeatCount(float count) const { call<"setRepeatCount:">(count); }
  BOOL autoreverses() const { return call<"autoreverses", BOOL>(); }
  void setAutoreverses(BOOL autoreverses) const { call<"setAutoreverses:">(autoreverses); }
  NSString fillMode() const { return call<"fillMode", NSString>(); }
  void setFillMode(NSString mode) const { call<"setFillMode:">(mode); }

  BOOL isRemovedOnCompletion() const { return call<"isRemovedOnCompletion", BOOL>(); }
  void setRemovedOnCompletion(BOOL removed) const { call<"setRemovedOnCompletion:">(removed); }
  CAMediaTimingFunction timingFunction() const {
    return call<"timingFunction", CAMediaTimingFunction>();
  }
  void setTimingFunction(CAMediaTimingFunction function) const {
    call<"setTimingFunction:">(function);
  }
  /// Retained by the animation, as on the platform. It may implement `animationDidStart:` and
  /// `animationDidStop:finished:`; both receive the layer's copy of the animation.
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }

  void setValueForKey(objc::Object value, NSString key) const {
    call<"setValue:forKey:">(value, key);
  }
  objc::Object valueForKey(NSString key) const { return call<"valueForKey:", objc::Object>(key); }
};

struct CAPropertyAnimation : objc::Bound<CAPropertyAnimation, "CAPropertyAnimation", CAAnimation> {
  NSString keyPath() const { return call<"keyPath", NSString>(); }
  void setKeyPath(NSString path) const { call<"setKeyPath:">(path); }
  BOOL isAdditive() const { return call<"isAdditive", BOOL>(); }
  void setAdditive(BOOL additive) const { call<"setAdditive:">(additive); }
  BOOL isCumulative() const { return call<"isCumulative", BOOL>(); }
  void setCumulative(BOOL cumulative) const { call<"setCumulative:">(cumulative); }
};
