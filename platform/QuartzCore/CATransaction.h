#pragma once

#include "objc/block.h"
#include "platform/QuartzCore/CAMediaTimingFunction.h"

struct CATransaction : objc::Bound<CATransaction, "CATransaction", NSObject> {
  static void begin() { call_class<"begin">(); }
  static void commit() { call_class<"commit">(); }
  /// Lays out and displays every layer that needs it. The run loop does this at the end of each
  /// turn.
  static void flush() { call_class<"flush">(); }

  static BOOL disableActions() { return call_class<"disableActions", BOOL>(); }
  static void setDisableActions(BOOL disable) { call_class<"setDisableActions:">(disable); }
  static double animationDuration() { return call_class<"animationDuration", double>(); }
  static void setAnimationDuration(double seconds) { call_class<"setAnimationDuration:">(seconds); }
  static CAMediaTimingFunction animationTimingFunction() {
    return call_class<"animationTimingFunction", CAMediaTimingFunction>();
  }
  static void setAnimationTimingFunction(CAMediaTimingFunction function) {
    call_class<"setAnimationTimingFunction:">(function);
  }
  /// The block runs once, when every animation that was added in this transaction has ended; in the
  /// next turn of the run loop if none was added.
  static void setCompletionBlock(objc::Block<void()> completion) {
    call_class<"setCompletionBlock:">(completion);
  }
};
