#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/runtime/run_loop.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// The milk-glass square in the middle of the screen. After a press of a volume button it shows the
/// volume in sixteen steps, then fades out by itself.
class VolumeOverlay {
 public:
  static constexpr int kSteps = 16;

  VolumeOverlay() = default;
  ~VolumeOverlay();
  VolumeOverlay(const VolumeOverlay&) = delete;
  VolumeOverlay& operator=(const VolumeOverlay&) = delete;

  /// `volume` is 0 to 1.
  void show(double volume);
  void hide_at_once();
  bool is_showing() const { return static_cast<bool>(window_); }
  int lit_steps() const { return lit_; }

 private:
  void build();
  void fade();
  void stop_waiting();

  objc::Ref<UIWindow> window_;
  objc::Ref<UIView> plate_;
  objc::Ref<UIImageView> speaker_;
  std::vector<objc::Ref<UIView>> steps_;
  std::optional<RunLoop::Id> fading_;
  int lit_ = 0;
  int shows_ = 0;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
