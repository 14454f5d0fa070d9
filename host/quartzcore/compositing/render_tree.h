#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/pixels/pixel_rect.h"

namespace host::quartzcore {

/// One layer as it stands in one frame, in drawing order (a parent before its children).
struct RenderNode {
  const Layer* layer = nullptr;
  std::uint64_t serial = 0;
  LayerProperties properties;
  CGAffineTransform to_device;
  /// Pixels that its own drawing may touch, within all clips above it.
  PixelRect own;
  /// The same with everything below it in the tree.
  PixelRect subtree;
  /// Equal numbers mean that its own drawing has the same pixels, opacity aside.
  std::uint64_t signature = 0;
  /// The opacities above it.
  std::uint64_t context = 0;
  /// For a backdrop: all that it depends on.
  std::uint64_t behind = 0;
  /// For a backdrop: the one drawing that it sees, an upright picture that fills its place; -1 when
  /// it sees anything else.
  int lone_picture = -1;
  /// What its own drawing is painted with: its opacity and that of layers above it that need no
  /// group.
  double opacity = 1;
  /// One past its last descendant.
  int end = 0;
  int parent = -1;
  /// The mask's place, or -1; a mask stands first among the children and is not painted as one.
  int mask = -1;
  bool is_mask = false;
  bool is_group = false;
  /// Its own drawing covers `own` completely.
  bool is_opaque = false;
  /// Its contents do so, and nothing of its background is seen.
  bool hides_background = false;
  bool is_scaling = false;
  /// Upright, and cut by nothing but whole pixels.
  bool is_plain = false;
  /// Its own drawing is one element without children: opacity needs no group.
  bool is_simple = false;
};

/// The pattern of its background; null when that is of one colour, or on its way to or from one.
const Pattern* shown_pattern(const RenderNode& node);

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
  struct Surroundings {
    CGAffineTransform to_device;
    PixelRect clip;
    std::uint64_t context = 0;
    int parent = -1;
    bool rounded_clip = false;
    bool is_scaling = false;
    bool in_group = false;
    bool is_mask = false;
  };

  void add(const Layer& layer, const Surroundings& around, double now);
  void add_children(int index, const Surroundings& inner, double now);
  void dissolve_group(int index);
  void sign_backdrops();
  int first_seen(int backdrop) const;
  int lone_picture(int first, int backdrop) const;

  std::vector<RenderNode> nodes_;
  std::vector<CALayer> undrawn_;
  FadedOut faded_out_ = FadedOut::Skipped;
};

}  // namespace host::quartzcore
