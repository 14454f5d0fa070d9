#pragma once

#include <cstdint>

#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/pixels/pixel_rect.h"

namespace host::quartzcore {

/// One layer in one frame. Nodes are in drawing order, parents before their children.
struct RenderNode {
  const Layer* layer = nullptr;
  std::uint64_t serial = 0;
  LayerProperties properties;
  CGAffineTransform to_device;
  /// The picture that the layer shows; null without one.
  const Image* image = nullptr;
  /// The pixels that its own drawing may touch, within all clips above it.
  PixelRect own;
  /// The same for the whole subtree.
  PixelRect subtree;
  /// Equal numbers mean that its own drawing has the same pixels, apart from opacity.
  std::uint64_t signature = 0;
  /// Identifies the opacities above it.
  std::uint64_t context = 0;
  /// For a backdrop: identifies everything that it depends on.
  std::uint64_t behind = 0;
  /// For a backdrop: the index of the only drawing behind it, if that is an upright picture that
  /// fills its area; otherwise -1.
  int lone_picture = -1;
  /// The opacity of its own drawing, including that of layers above it that need no group.
  double opacity = 1;
  /// One past its last descendant.
  int end = 0;
  int parent = -1;
  /// The index of the mask, or -1. A mask is the first child, but is not painted as one.
  int mask = -1;
  bool is_mask = false;
  bool is_group = false;
  /// Its own drawing covers `own` completely.
  bool is_opaque = false;
  /// Its contents cover `own` completely and hide its background.
  bool hides_background = false;
  bool is_scaling = false;
  /// Upright, and clipped only at whole pixels.
  bool is_plain = false;
};

/// What a layer inherits from the layers above it in one frame.
struct Surroundings {
  CGAffineTransform to_device;
  PixelRect clip;
  std::uint64_t context = 0;
  int parent = -1;
  bool rounded_clip = false;
  bool is_scaling = false;
  bool is_mask = false;
};

// The steps that build a node from a layer. Each uses the results of the steps before it.

/// Sets parent and transform.
void place(RenderNode& node, const Surroundings& around);
/// Decides whether the layer needs an offscreen picture before its opacity is applied.
void decide_group(RenderNode& node);
/// Sets the pixels that the layer may touch.
void measure(RenderNode& node, const Surroundings& around);
/// Decides what the layer hides and how it is clipped.
void decide_cover(RenderNode& node, const Surroundings& around);
/// Sets the signatures of the drawing and of its context.
void sign(RenderNode& node, const Surroundings& around);
/// Returns the surroundings of the sublayers and the mask of the node at `index`.
Surroundings inside(const RenderNode& node, int index, const Surroundings& around);

/// True if the transform only moves and scales, without rotating or mirroring.
bool is_upright(const CGAffineTransform& transform);

/// True if the transform reduces the layer to a line or a point.
bool is_flat(const RenderNode& node);
bool is_in_sight(const RenderNode& node, const PixelRect& clip);
/// Returns the frame of the node's picture, which must not be null, in the layer's coordinates.
CGRect place_of_image(const RenderNode& node);
/// Returns how many pictures the layer itself paints, one over the other.
int elements_of(const RenderNode& node);

/// Returns the background pattern; null for a plain colour and while the background is animated.
const Pattern* shown_pattern(const RenderNode& node);

}  // namespace host::quartzcore
