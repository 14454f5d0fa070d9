#pragma once

#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

class GestureRecognizer;
class Touch;

/// Where the recognisers that watch the same touches settle which of them wins, and where views
/// learn of touches that no recogniser claims.
class GestureArena {
 public:
  static GestureArena& shared();

  void engage(UIGestureRecognizer recognizer);
  void disengage(UIGestureRecognizer recognizer);

  /// Takes one changed touch through recognisers and views.
  void dispatch(UITouch touch, UIEvent event);

  /// Is there one among the others, already recognised, that does not let this one begin?
  bool is_prevented(const GestureRecognizer& recognizer) const;
  /// Is there one still undecided that this one has to wait for?
  bool has_to_wait(const GestureRecognizer& recognizer) const;
  /// It has begun: the undecided ones that it excludes fail, and its touches leave their views.
  void recognized(const GestureRecognizer& recognizer);
  /// It has failed: those that waited for it may go on.
  void failed(const GestureRecognizer& recognizer);
  /// A gesture ended outside of an event, by a timer perhaps: views and recognisers catch up.
  void settle();

 private:
  void collect_recognizers(Touch& touch);
  void tell_recognizers(UITouch touch, UIEvent event);
  std::vector<objc::Ref<UIGestureRecognizer>> others_than(UIGestureRecognizer recognizer) const;

  std::vector<objc::Ref<UIGestureRecognizer>> engaged_;
  int dispatching_ = 0;
};

}  // namespace host::uikit
