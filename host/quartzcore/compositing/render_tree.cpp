#include "host/quartzcore/compositing/render_tree.h"

#include <utility>

#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

// What is fainter changes no pixel. So the first frame of a fade need not draw what comes.
constexpr double kLeastOpacity = 0.5 / 256;

/// Returns the rectangle that `clip` shows, in the layer's coordinates, and a little more.
CGRect shown_part(const CGAffineTransform& to_device, const PixelRect& clip) {
  const CGRect pixels(clip.x - 1, clip.y - 1, clip.width + 2, clip.height + 2);
  return CGRectApplyAffineTransform(pixels, CGAffineTransformInvert(to_device));
}

}  // namespace

void RenderTree::prepare(std::span<const CALayer> roots, const PixelRect& screen, double scale,
                         double now, const ShownPictures& shown, FadedOut faded_out) {
  shown_ = &shown;
  nodes_.clear();
  undrawn_.clear();
  faded_out_ = faded_out;
  Surroundings around;
  around.to_device = {scale, 0, 0, scale, 0, 0};
  around.clip = screen;
  for (CALayer root : roots) {
    if (root) add(layer_of(root), around, now);
  }
  sign_backdrops();
}

void RenderTree::add(const Layer& layer, const Surroundings& around, double now) {
  if (layer.model.hidden || around.clip.is_empty()) return;
  RenderNode node;
  node.layer = &layer;
  node.serial = layer.serial;
  node.properties = layer.present(now);
  if (node.properties.opacity < kLeastOpacity && faded_out_ == FadedOut::Skipped) return;
  place(node, around);
  if (is_flat(node)) return;
  node.image = shown_->picture_of(node);
  if (layer.marks.needs_display && is_in_sight(node, around.clip))
    undrawn_.push_back(layer.handle());
  node.is_scaling = around.is_scaling || layer.animations.is_scaling(now);
  decide_group(node);
  measure(node, around);
  decide_cover(node, around);
  sign(node, around);

  const int index = count();
  const Surroundings inner = inside(node, index, around);
  nodes_.push_back(node);
  if (layer.tree.mask) add_mask(index, inner, now);
  add_sublayers(layer, inner, now);
  finish(index);
}

void RenderTree::add_mask(int index, Surroundings inner, double now) {
  inner.is_mask = true;
  const int mask = count();
  add(layer_of(at(index).layer->tree.mask.get()), inner, now);
  at(index).mask = count() > mask ? mask : -1;
}

void RenderTree::add_sublayers(const Layer& layer, const Surroundings& inner, double now) {
  if (layer.tree.sublayers.empty() || inner.clip.is_empty()) return;
  layer.reach.visit_sublayers(shown_part(inner.to_device, inner.clip),
                              [&](const Layer& child) { add(child, inner, now); });
}

/// To be called once the node's whole subtree has been added.
void RenderTree::finish(int index) {
  at(index).end = count();
  dissolve_group(index);
  const RenderNode& node = at(index);
  if (node.parent < 0) return;
  PixelRect& around = at(node.parent).subtree;
  around = united(around, node.subtree);
}

bool RenderTree::is_within(int node, int ancestor) const {
  return node >= ancestor && node < at(ancestor).end;
}

// A fading layer whose subtree draws a single element needs no offscreen picture: the element is
// painted with the layer's opacity.
void RenderTree::dissolve_group(int index) {
  RenderNode& group = at(index);
  if (!group.is_group || group.layer->tree.mask || group.layer->model.should_rasterize) return;
  int elements = 0;
  for (int i = index; i < group.end; ++i) {
    const RenderNode& node = at(i);
    if (node.is_mask || (node.is_group && i != index)) return;
    if (!node.own.is_empty()) elements += elements_of(node);
  }
  if (elements > 1) return;
  const double opacity = group.properties.opacity;
  group.is_group = false;
  for (int i = index; i < group.end; ++i) {
    RenderNode& node = at(i);
    node.opacity *= opacity;
    // In a group it would be rounded differently.
    node.context = mix_signature(node.context, opacity);
    if (opacity < 1) node.is_opaque = false;
  }
}

/// Returns the last opaque drawing that fills the backdrop's area, or the first node.
int RenderTree::first_seen(int index) const {
  const RenderNode& backdrop = at(index);
  for (int j = index - 1; j > 0; --j) {
    const RenderNode& below = at(j);
    if (!below.is_opaque || !below.own.contains(backdrop.own)) continue;
    bool reaches = !below.is_group || is_within(index, j);
    for (int g = below.parent; g >= 0; g = at(g).parent)
      reaches &= !at(g).is_group || is_within(index, g);
    if (reaches) return j;
  }
  return 0;
}

int RenderTree::lone_picture(int first, int index) const {
  const RenderNode& backdrop = at(index);
  const RenderNode& picture = at(first);
  const bool is_picture = picture.is_opaque && picture.own.contains(backdrop.own) &&
                          picture.image && elements_of(picture) == 1;
  if (!is_picture) return -1;
  for (int k = first + 1; k < index; ++k) {
    if (intersects(at(k).own, backdrop.own)) return -1;
  }
  return first;
}

// A backdrop depends on everything drawn before it in its area, back to the last opaque drawing
// that fills the area. The opacity of groups that contain the backdrop does not matter: it is
// applied to the finished group.
std::uint64_t RenderTree::signature_behind(int index, int first) const {
  const RenderNode& backdrop = at(index);
  std::uint64_t behind = backdrop.signature;
  for (int k = first; k < index; ++k) {
    const RenderNode& below = at(k);
    const bool holds = is_within(index, k);
    if (!holds && below.is_group && intersects(below.subtree, backdrop.own))
      behind = mix_signature(behind, below.properties.opacity);
    if (!intersects(below.own, backdrop.own)) continue;
    behind = mix_signature(behind, below.signature);
    behind = mix_signature(behind, below.behind);
    if (!holds) behind = mix_signature(behind, below.opacity);
  }
  return behind;
}

void RenderTree::sign_backdrops() {
  for (int i = 0; i < count(); ++i) {
    if (!at(i).layer->backdrop) continue;
    const int first = first_seen(i);
    at(i).lone_picture = lone_picture(first, i);
    at(i).behind = signature_behind(i, first);
  }
}

}  // namespace host::quartzcore
