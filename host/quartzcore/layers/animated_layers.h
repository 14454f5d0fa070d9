#pragma once

#include <vector>

#include "host/runtime/run_loop.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

/// The layers of this process of which something moves. They enter and leave by themselves, so
/// nothing here is retained. While there is one, a run loop is asked for frames.
class AnimatedLayers {
 public:
  /// What there may be since somebody looked last. Thousands of layers may be animated; they are
  /// looked through only when there is something new.
  struct News {
    bool starts = false;
    bool ends = false;
  };

  bool empty() const { return layers_.empty(); }
  const std::vector<CALayer>& all() const { return layers_; }

  void add(CALayer layer);
  void remove(CALayer layer);
  /// Lets go of those of which nothing moves any more.
  template <class Rests>
  void remove_if(Rests rests) {
    std::erase_if(layers_, rests);
    update_frames();
  }
  /// Empties the list.
  std::vector<CALayer> take();

  News& news() { return news_; }
  /// After an animation was added to a layer or taken from it.
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

/// The ones of this process.
AnimatedLayers& animated_layers();

}  // namespace host::quartzcore
