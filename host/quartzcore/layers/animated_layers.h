#pragma once

#include <vector>

#include "host/runtime/run_loop.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

/// The layers of this process that have animations. They enter and leave the list by themselves and
/// are not retained. While the list is not empty, frames are requested from a run loop.
class AnimatedLayers {
 public:
  /// What may have changed since the last look. Thousands of layers may be animated; they are
  /// searched only when something may be new.
  struct News {
    bool starts = false;
    bool ends = false;
  };

  bool empty() const { return layers_.empty(); }
  const std::vector<CALayer>& all() const { return layers_; }

  void add(CALayer layer);
  void remove(CALayer layer);
  /// Removes the layers for which `rests` returns true.
  template <class Rests>
  void remove_if(Rests rests) {
    std::erase_if(layers_, rests);
    update_frames();
  }
  /// Empties the list and returns its layers.
  std::vector<CALayer> take();

  News& news() { return news_; }
  /// To be called after an animation was added to a layer or removed from it.
  void note_news() { news_ = {true, true}; }

  /// Runs `work` at every frame of `loop` while, and only while, a layer is animated.
  void ask_for_frames(RunLoop& loop, RunLoop::Work work);
  void stop_frames();

 private:
  void update_frames();

  std::vector<CALayer> layers_;
  News news_;
  RunLoop* loop_ = nullptr;
  RunLoop::Work work_;
  RunLoop::Id frame_observer_ = 0;
};

/// The only instance in this process.
AnimatedLayers& animated_layers();

}  // namespace host::quartzcore
