#include <algorithm>

#include "host/quartzcore/backdrop_filter.h"
#include "host/quartzcore/backdrop_layer.h"
#include "host/quartzcore/compositor.h"

namespace host::quartzcore {

void Compositor::paint_node(int index, const PixelRect& damage, int first) {
  const RenderNode& one = node(index);
  if (one.end <= first || !intersects(one.subtree, damage)) return;
  if (one.is_group) {
    paint_group(index, damage);
  } else {
    paint_contents(index, damage, first, one.properties.opacity);
  }
}

void Compositor::paint_contents(int index, const PixelRect& damage, int first, double opacity) {
  const RenderNode& one = node(index);
  // By value: drawing a group below may move the list of canvases.
  const Canvas canvas = canvases_.back();
  cairo_save(canvas.drawing.get());
  if (index >= first && intersects(one.own, damage)) {
    if (one.layer->backdrop()) paint_backdrop(index, opacity);
    paint_layer(canvas, one, opacity, images_);
  }
  const int first_child = one.mask >= 0 ? node(one.mask).end : index + 1;
  if (first_child < one.end) {
    cairo_save(canvas.drawing.get());
    if (one.layer->masks()) clip_to_layer(canvas, one);
    for (int child = first_child; child < one.end; child = node(child).end)
      paint_node(child, damage, first);
    cairo_restore(canvas.drawing.get());
  }
  paint_border(canvas, one, opacity);
  cairo_restore(canvas.drawing.get());
}

// What a group shows when it is drawn alone: the opacity of the group itself and of everything
// round it is left out, so that a fade draws the group once.
std::uint64_t Compositor::contents_of_group(int index) const {
  std::uint64_t result = 1;
  for (int i = index; i < node(index).end; ++i) {
    const RenderNode& one = node(i);
    result = mix_signature(result, one.layer->backdrop() ? one.behind : one.signature);
    if (i != index) result = mix_signature(result, one.properties.opacity);
  }
  return result;
}

void Compositor::paint_group(int index, const PixelRect& damage) {
  const RenderNode& one = node(index);
  const PixelRect place = intersection(one.subtree, screen_);
  CachedGroup& group = groups_[one.serial];
  const std::uint64_t contents = contents_of_group(index);
  if (!group.surface || group.contents != contents || !(group.place == place)) {
    group.contents = contents;
    group.place = place;
    draw_group(index, group);
  }
  static_cast<void>(damage);
  paint_surface(canvases_.back(), group.surface, place.x, place.y, one.properties.opacity,
                Opacity::Translucent);
}

void Compositor::draw_group(int index, CachedGroup& group) {
  ++groups_drawn_;
  // A drawing of its own, since the old surface may still stand in a pattern.
  group.surface = make_surface(group.place.width, group.place.height);
  canvases_.push_back(make_canvas(group.surface, group.place.x, group.place.y));
  paint_contents(index, group.place, -1, 1);
  if (node(index).layer->mask_layer()) apply_mask(index);
  canvases_.pop_back();
  cairo_surface_flush(group.surface.get());
}

void Compositor::apply_mask(int index) {
  // By value: the mask's own canvas may move the list.
  const Canvas canvas = canvases_.back();
  const int mask = node(index).mask;
  const Surface shape = make_surface(width_of(canvas.surface), height_of(canvas.surface));
  canvases_.push_back(make_canvas(shape, canvas.x, canvas.y));
  if (mask >= 0) {
    const PixelRect all{canvas.x, canvas.y, width_of(shape), height_of(shape)};
    paint_node(mask, all, -1);
  }
  canvases_.pop_back();
  cairo_t* drawing = canvas.drawing.get();
  cairo_identity_matrix(drawing);
  cairo_set_operator(drawing, CAIRO_OPERATOR_DEST_IN);
  cairo_set_source_surface(drawing, shape.get(), 0, 0);
  cairo_paint(drawing);
  cairo_set_operator(drawing, CAIRO_OPERATOR_OVER);
}

Surface Compositor::picture_behind(const PixelRect& place) const {
  const Surface picture = make_surface(place.width, place.height);
  const Canvas canvas = make_canvas(picture, place.x, place.y);
  for (const Canvas& below : canvases_) {
    cairo_surface_flush(below.surface.get());
    const bool is_screen = &below == &canvases_.front();
    paint_surface(canvas, below.surface, below.x, below.y, 1,
                  is_screen ? Opacity::Opaque : Opacity::Translucent);
  }
  return picture;
}

void Compositor::paint_backdrop(int index, double opacity) {
  const RenderNode& one = node(index);
  CachedBackdrop& cached = backdrops_[one.serial];
  if (!cached.surface || cached.behind != one.behind || !(cached.place == one.own)) {
    ++blurs_;
    BackdropLayer& backdrop = *one.layer->backdrop();
    FilteredBackdrop made = filter_backdrop(picture_behind(one.own), backdrop.look(), scale_);
    cached = {one.behind, frames_, one.own, std::move(made.surface)};
    backdrop.note_luminance(made.luminance);
  }
  const Canvas& canvas = canvases_.back();
  cairo_save(canvas.drawing.get());
  clip_to_layer(canvas, one);
  paint_surface(canvas, cached.surface, one.own.x, one.own.y, opacity, Opacity::Opaque);
  cairo_restore(canvas.drawing.get());
}

}  // namespace host::quartzcore
