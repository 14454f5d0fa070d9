#pragma once

#include "objc/block.h"
#include "platform/QuartzCore/CAMediaTimingFunction.h"

struct CATransaction : objc::Bound<CATransaction, "CATransaction", NSObject> {
  static void begin() { call_class<"begin">(); }
  static void commit() { call_class<"commit">(); }
  /// Lays out and displays what is marked; the end of a turn of the run loop does so by itself.
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
  /// Runs once when every animation added in this transaction has ended; in the next turn of the
  /// run loop when there was none.
  static void setCompletionBlock(objc::Block<void()> completion) {
    call_class<"setCompletionBlock:">(completion);
  }
};
