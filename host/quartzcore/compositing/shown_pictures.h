#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "host/quartzcore/compositing/render_node.h"
#include "objc/ref.h"

namespace host::quartzcore {

/// The pictures that layers showed in the last frame, if their pixels may have to be waited for. A
/// layer that gets such a picture in place of another one keeps showing that until the pixels are
/// there: a gap would let what is behind the layer flash up.
class ShownPictures {
 public:
  /// Returns the picture to paint for a node with a place and properties; null without one. May
  /// request the pixels of the layer's own picture.
  const Image* picture_of(const RenderNode& node) const;
  /// To be called with the nodes of each frame.
  void note(const std::vector<RenderNode>& nodes);

 private:
  struct Shown {
    objc::Ref<objc::Object> contents;
    CGRect bounds;
    CGAffineTransform to_device;
  };
  using ByLayer = std::unordered_map<std::uint64_t, Shown>;

  ByLayer shown_;
};

}  // namespace host::quartzcore
