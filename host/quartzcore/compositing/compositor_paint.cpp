#include <algorithm>

#include "host/quartzcore/compositing/backdrop_filter.h"
#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/pixels/pixel_blend.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {

void Compositor::paint_node(int index, const PixelRect& damage, int first) {
  const RenderNode& one = node(index);
  if (one.end <= first || !intersects(one.subtree, damage)) return;
  if (one.is_group) {
    paint_group(index, damage);
  } else {
    paint_contents(index, damage, first, one.opacity);
  }
}

void Compositor::paint_contents(int index, const PixelRect& damage, int first, double opacity) {
  const RenderNode& one = node(index);
  // By value: drawing a group below may reallocate the list of canvases.
  const Canvas canvas = canvases_.back();
  cairo_save(canvas.drawing.get());
  if (index >= first && intersects(one.own, damage)) {
    if (one.layer->backdrop) paint_backdrop(index, damage, opacity);
    paint_layer(canvas, one, opacity, images_);
  }
  const int first_child = one.mask >= 0 ? node(one.mask).end : index + 1;
  if (first_child < one.end) {
    cairo_save(canvas.drawing.get());
    if (one.layer->model.masks_to_bounds) clip_to_layer(canvas, one);
    for (int child = first_child; child < one.end; child = node(child).end)
      paint_node(child, damage, first);
    cairo_restore(canvas.drawing.get());
  }
  paint_border(canvas, one, opacity);
  cairo_restore(canvas.drawing.get());
}

// Identifies what a group shows by itself, without its own opacity and the opacity around it, so
// that a fade draws the group only once.
std::uint64_t Compositor::contents_of_group(int index) const {
  std::uint64_t result = 1;
  for (int i = index; i < node(index).end; ++i) {
    const RenderNode& one = node(i);
    result = mix_signature(result, one.layer->backdrop ? one.behind : one.signature);
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
  const Canvas& canvas = canvases_.back();
  if (!group.is_opaque) {
    paint_surface(canvas, group.surface, place.x, place.y, one.properties.opacity,
                  Opacity::Translucent);
    return;
  }
  const PixelRect part{damage.x - canvas.x, damage.y - canvas.y, damage.width, damage.height};
  blend_opaque(group.surface, canvas.surface, place.x - canvas.x, place.y - canvas.y, part,
               one.properties.opacity);
}

void Compositor::draw_group(int index, CachedGroup& group) {
  ++groups_drawn_;
  const int first = first_needed(group.place, index);
  // A drawing that fills the whole area needs no empty picture below it, and the result is opaque.
  group.is_opaque = first >= 0;
  const auto prepared = group.is_opaque ? reused : emptied;
  group.surface = prepared(std::move(group.surface), group.place.width, group.place.height);
  canvases_.push_back(make_canvas(group.surface, group.place.x, group.place.y));
  paint_contents(index, group.place, first, 1);
  if (node(index).layer->tree.mask) apply_mask(index);
  canvases_.pop_back();
  cairo_surface_flush(group.surface.get());
}

void Compositor::apply_mask(int index) {
  // By value: the mask's own canvas may reallocate the list.
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

// Only a group's own picture can be empty where the screen is not.
SmallPicture Compositor::small_picture_behind(const RenderNode& backdrop, int reduction) const {
  const PixelRect& place = backdrop.own;
  if (canvases_.size() == 1) return reduce(canvases_.front().surface, place, reduction);
  const Surface picture = make_surface(place.width, place.height);
  const Canvas canvas = make_canvas(picture, place.x, place.y);
  for (const Canvas& below : canvases_) {
    cairo_surface_flush(below.surface.get());
    const bool is_screen = &below == &canvases_.front();
    paint_surface(canvas, below.surface, below.x, below.y, 1,
                  is_screen ? Opacity::Opaque : Opacity::Translucent);
  }
  return reduce(picture, {0, 0, place.width, place.height}, reduction);
}

// A picture that only a backdrop sees is never scaled to the screen.
SmallPicture Compositor::small_copy_of(const RenderNode& shown, const PixelRect& place,
                                       int reduction) {
  const Image& image = *shown.layer->model.contents.image();
  const PixelRect box = nearest_pixels(CGRectApplyAffineTransform(
      shown.layer->model.contents.place_in(shown.properties.bounds), shown.to_device));
  const Surface scaled =
      images_.scaled(image, std::max(1, box.width / reduction), std::max(1, box.height / reduction),
                     ImageCache::Pixels::Waited);
  const Surface small = make_surface((place.width + reduction - 1) / reduction,
                                     (place.height + reduction - 1) / reduction);
  const Drawing drawing = draw_on(small);
  cairo_scale(drawing.get(), 1.0 / reduction, 1.0 / reduction);
  cairo_translate(drawing.get(), box.x - place.x, box.y - place.y);
  cairo_scale(drawing.get(), static_cast<double>(box.width) / width_of(scaled),
              static_cast<double>(box.height) / height_of(scaled));
  cairo_set_source_surface(drawing.get(), scaled.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(drawing.get()), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(drawing.get()), CAIRO_FILTER_BILINEAR);
  cairo_paint(drawing.get());
  return take_reduced(small, reduction);
}

// Backdrops over a single picture are blurred before anything is painted, so that painting can skip
// the hidden picture.
void Compositor::prepare_backdrops(const RenderTree& tree) {
  for (const RenderNode& one : tree.nodes()) {
    if (one.lone_picture < 0 || one.own.is_empty() || backdrop_is_ready(one)) continue;
    const RenderNode& picture = tree.nodes()[static_cast<std::size_t>(one.lone_picture)];
    const int reduction = reduction_for(one.layer->backdrop->look(), scale_);
    blur(one, small_copy_of(picture, one.own, reduction));
  }
}

void Compositor::blur(const RenderNode& one, SmallPicture behind) {
  ++blurs_;
  BackdropLayer& backdrop = *one.layer->backdrop;
  backdrop.note_luminance(filter_backdrop(behind, backdrop.look(), scale_));
  CachedBackdrop& cached = backdrops_[one.serial];
  cached = {one.behind, frames_, one.own, std::move(behind), std::move(cached.surface), false};
}

void Compositor::paint_backdrop(int index, const PixelRect& damage, double opacity) {
  const RenderNode& one = node(index);
  if (!backdrop_is_ready(one)) {
    const int reduction = reduction_for(one.layer->backdrop->look(), scale_);
    blur(one, small_picture_behind(one, reduction));
  }
  CachedBackdrop& cached = backdrops_[one.serial];
  const Canvas& canvas = canvases_.back();
  if (!cached.is_enlarged && cached.frame == frames_ && one.is_plain) {
    const PixelRect part = intersection(one.own, damage);
    return paint_enlarged(cached.small, canvas.surface, one.own.x - canvas.x, one.own.y - canvas.y,
                          {part.x - canvas.x, part.y - canvas.y, part.width, part.height}, opacity);
  }
  if (!cached.is_enlarged) {
    cached.surface = reused(std::move(cached.surface), one.own.width, one.own.height);
    enlarge(cached.small, cached.surface);
    cached.is_enlarged = true;
  }
  cairo_save(canvas.drawing.get());
  clip_to_layer(canvas, one);
  paint_surface(canvas, cached.surface, one.own.x, one.own.y, opacity, Opacity::Opaque);
  cairo_restore(canvas.drawing.get());
}

}  // namespace host::quartzcore
