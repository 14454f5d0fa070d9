#pragma once

#include <optional>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::activator {

/// One finger that came in over an edge or a corner of the screen, until it is known to slide in or
/// to do something else.
class EdgeSlide {
 public:
  /// Nothing when the finger lands too far inside.
  static std::optional<EdgeSlide> begin(CGSize screen, CGPoint point);

  enum class Verdict { Undecided, SlidIn, Other };
  Verdict move(CGPoint point);
  /// The event's name, once it has slid in.
  const char* event() const { return event_; }

 private:
  EdgeSlide(CGSize screen, CGPoint start) : screen_(screen), start_(start) {}
  const char* corner(CGPoint inwards) const;
  const char* edge(CGPoint inwards) const;

  CGSize screen_;
  CGPoint start_;
  const char* event_ = nullptr;
};

}  // namespace host::activator
