#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "host/quartzcore/compositing/render_node.h"
#include "host/quartzcore/compositing/shown_pictures.h"

namespace host::quartzcore {

/// All visible layers of a frame, and possibly a few more, in drawing order.
class RenderTree {
 public:
  /// How fully transparent layers are treated.
  enum class FadedOut { Skipped, Included };

  /// `screen` is in pixels, `scale` in pixels per point; `now` is the clock time; `shown` are the
  /// pictures of the frame before.
  void prepare(std::span<const CALayer> roots, const PixelRect& screen, double scale, double now,
               const ShownPictures& shown, FadedOut faded_out = FadedOut::Skipped);

  const std::vector<RenderNode>& nodes() const { return nodes_; }
  /// Visible layers that are marked for display. Layers out of sight are not displayed yet.
  const std::vector<CALayer>& undrawn() const { return undrawn_; }
  /// True if `node` is `ancestor` or below it in the tree.
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
  // Only while the tree is being prepared.
  const ShownPictures* shown_ = nullptr;
  FadedOut faded_out_ = FadedOut::Skipped;
};

}  // namespace host::quartzcore
