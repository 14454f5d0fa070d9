#pragma once

#include <optional>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::activator {

/// Follows one finger that came in over an edge or a corner of the screen, until it is clear
/// whether it slides in.
class EdgeSlide {
 public:
  /// Empty when the finger lands too far inside.
  static std::optional<EdgeSlide> begin(CGSize screen, CGPoint point);

  enum class Verdict { Undecided, SlidIn, Other };
  Verdict move(CGPoint point);
  /// The event's name, once the finger has slid in.
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
