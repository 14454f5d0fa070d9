#pragma once

#include <functional>
#include <utility>

#include "host/runtime/run_loop.h"
#include "host/uikit/scroll_physics/axis_glide.h"
#include "objc/object.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// Moves an offset without a finger: a glide after a release, the short way of a notched wheel, or
/// the animation to an offset that was set. It requests frames from the loop only while it runs.
class ScrollMotion {
 public:
  enum class Kind { None, Glide, Wheel, Animation };

  /// `owner` holds this motion and is kept alive during each frame. `move` receives every new
  /// offset, `finish` the kind of a motion that has come to its own end.
  ScrollMotion(objc::Object owner, std::function<void(CGPoint)> move,
               std::function<void(Kind)> finish);
  ScrollMotion(const ScrollMotion&) = delete;
  ScrollMotion& operator=(const ScrollMotion&) = delete;
  ~ScrollMotion() { stop(); }

  void glide(AxisGlide horizontal, AxisGlide vertical) {
    start(Kind::Glide, std::move(horizontal), std::move(vertical));
  }
  void turn(AxisGlide horizontal, AxisGlide vertical) {
    start(Kind::Wheel, std::move(horizontal), std::move(vertical));
  }
  void animate(CGPoint from, CGPoint to);
  /// Ends the motion where it is, without calling `finish`.
  void stop();

  Kind kind() const { return kind_; }
  bool runs() const { return kind_ != Kind::None; }
  /// The velocity of a glide, in points per second.
  CGPoint velocity() const;
  /// Where the motion is going to rest.
  CGPoint end() const;

 private:
  void start(Kind kind, AxisGlide horizontal, AxisGlide vertical);
  void start(Kind kind, double duration);
  void frame(double now);
  CGPoint offset_at(double time) const;

  objc::Object owner_;
  std::function<void(CGPoint)> move_;
  std::function<void(Kind)> finish_;
  Kind kind_ = Kind::None;
  RunLoop::Id observer_ = 0;
  double started_ = 0;
  double duration_ = 0;
  AxisGlide horizontal_;
  AxisGlide vertical_;
  CGPoint from_;
  CGPoint to_;
};

}  // namespace host::uikit
