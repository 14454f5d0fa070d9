#pragma once

#include <cstdint>

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
};

/// What stands around a layer in one frame.
struct Surroundings {
  CGAffineTransform to_device;
  PixelRect clip;
  std::uint64_t context = 0;
  int parent = -1;
  bool rounded_clip = false;
  bool is_scaling = false;
  bool is_mask = false;
};

// The steps in which a node is made of a layer; each needs those before it.

/// Where the layer stands, apart from how large its drawing is.
void place(RenderNode& node, const Surroundings& around);
/// Whether it needs a picture of its own before its opacity is applied.
void decide_group(RenderNode& node);
/// The pixels that it may touch.
void measure(RenderNode& node, const Surroundings& around);
/// What it hides, and what cuts it.
void decide_cover(RenderNode& node, const Surroundings& around);
/// Its signature and that of its context.
void sign(RenderNode& node, const Surroundings& around);
/// What the node, which is at `index`, is to its sublayers and its mask.
Surroundings inside(const RenderNode& node, int index, const Surroundings& around);

/// Does it only move and scale, without turning or mirroring?
bool is_upright(const CGAffineTransform& transform);

/// Does its transform leave nothing of it?
bool is_flat(const RenderNode& node);
bool is_in_sight(const RenderNode& node, const PixelRect& clip);
/// How many pictures the layer itself paints one over the other.
int elements_of(const RenderNode& node);

/// The pattern of its background; null when that is of one colour, or on its way to or from one.
const Pattern* shown_pattern(const RenderNode& node);

}  // namespace host::quartzcore
