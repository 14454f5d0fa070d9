#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "host/quartzcore/compositing/render_node.h"

namespace host::quartzcore {

/// All layers of a frame that can be seen, and perhaps a few more, in drawing order.
class RenderTree {
 public:
  /// What becomes of layers without any opacity.
  enum class FadedOut { Skipped, Included };

  /// `screen` in pixels, `scale` pixels to the point, `now` the animations' time.
  void prepare(std::span<const CALayer> roots, const PixelRect& screen, double scale, double now,
               FadedOut faded_out = FadedOut::Skipped);

  const std::vector<RenderNode>& nodes() const { return nodes_; }
  /// Layers in sight that are marked for display, which waits for as long as nobody can see it.
  const std::vector<CALayer>& undrawn() const { return undrawn_; }
  /// Does `node` stand in the tree below `ancestor` (or is it the same)?
  bool is_within(int node, int ancestor) const;

 private:
  void add(const Layer& layer, const Surroundings& around, double now);
  void add_mask(int index, Surroundings inner, double now);
  void add_sublayers(const Layer& layer, const Surroundings& inner, double now);
  void finish(int index);
  void dissolve_group(int index);
  void sign_backdrops();
  int first_seen(int backdrop) const;
  int lone_picture(int first, int backdrop) const;
  std::uint64_t signature_behind(int backdrop, int first) const;
  RenderNode& at(int index) { return nodes_[static_cast<std::size_t>(index)]; }
  const RenderNode& at(int index) const { return nodes_[static_cast<std::size_t>(index)]; }
  int count() const { return static_cast<int>(nodes_.size()); }

  std::vector<RenderNode> nodes_;
  std::vector<CALayer> undrawn_;
  FadedOut faded_out_ = FadedOut::Skipped;
};

}  // namespace host::quartzcore
