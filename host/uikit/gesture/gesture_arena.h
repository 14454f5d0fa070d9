#pragma once

#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

class GestureRecognizer;
class Touch;

/// Decides which of the recognisers that watch the same touches wins, and delivers touches that no
/// recogniser claims to their views.
class GestureArena {
 public:
  static GestureArena& shared();

  void engage(UIGestureRecognizer recognizer);
  void disengage(UIGestureRecognizer recognizer);

  /// Passes one changed touch through recognisers and views.
  void dispatch(UITouch touch, UIEvent event);

  /// Returns whether another recogniser has already recognised and keeps this one from beginning.
  bool is_prevented(const GestureRecognizer& recognizer) const;
  /// Returns whether this recogniser has to wait for another that is still undecided.
  bool has_to_wait(const GestureRecognizer& recognizer) const;
  /// The recogniser has begun: undecided ones that it excludes fail, and its touches leave their
  /// views.
  void recognized(const GestureRecognizer& recognizer);
  /// The recogniser has failed: those that waited for it may go on.
  void failed(const GestureRecognizer& recognizer);
  /// Brings views and recognisers up to date after a gesture ended outside of an event, for example
  /// by a timer.
  void settle();

 private:
  void collect_recognizers(Touch& touch);
  void tell_recognizers(UITouch touch, UIEvent event);
  std::vector<objc::Ref<UIGestureRecognizer>> others_than(UIGestureRecognizer recognizer) const;

  std::vector<objc::Ref<UIGestureRecognizer>> engaged_;
  int dispatching_ = 0;
};

}  // namespace host::uikit
