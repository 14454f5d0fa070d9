#pragma once

#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

#include "host/quartzcore/compositing/image_cache.h"
#include "host/quartzcore/compositing/layer_painter.h"
#include "host/quartzcore/compositing/render_tree.h"
#include "host/quartzcore/pixels/small_picture.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// The rectangles of pixels that a frame painted; none when nothing had changed.
using Damage = std::vector<PixelRect>;

/// Paints trees of layers into one surface of the screen's pixels, and of each frame only what
/// differs from the frame before.
class Compositor {
 public:
  /// Sizes in pixels; `scale` pixels to the point.
  Compositor(int width, int height, double scale);

  /// Brings the surface up to `roots` (drawn in their order, over black) at the clock time `now`.
  Damage render(std::span<const CALayer> roots, double now);

  /// Blurs ahead what backdrops that are faded out will show of a picture behind them, so that no
  /// frame of their fade has to. Meant for the time between frames; where nothing is new it costs
  /// next to nothing.
  void prepare_ahead(std::span<const CALayer> roots, double now);

  /// ARGB32, `width` × `height`. It stays the same surface for life.
  const Surface& surface() const { return surface_; }
  PixelRect screen() const { return screen_; }
  double scale() const { return scale_; }

  std::uint64_t frame_count() const { return frames_; }
  std::uint64_t painted_pixels() const { return painted_pixels_; }
  /// How often a backdrop was really blurred, and a group really drawn.
  std::uint64_t blur_count() const { return blurs_; }
  std::uint64_t group_count() const { return groups_drawn_; }

  /// Forgets what is on the screen: the next frame paints all of it.
  void invalidate() { entries_.clear(), last_changes_ = 0, damage_all_ = true; }

 private:
  struct Entry {
    std::uint64_t serial;
    std::uint64_t signature;
    PixelRect own;
  };
  struct CachedBackdrop {
    std::uint64_t behind = 0;
    std::uint64_t frame = 0;
    PixelRect place;
    SmallPicture small;
    // At the screen's size; made when the blur is painted for a second time.
    Surface surface;
    bool is_enlarged = false;
  };
  struct CachedGroup {
    std::uint64_t contents = 0;
    std::uint64_t frame = 0;
    PixelRect place;
    Surface surface;
    bool is_opaque = false;
  };

  Damage find_damage(const std::vector<Entry>& before, const std::vector<Entry>& after);
  Damage merged(Damage damage) const;
  void paint_damage(const PixelRect& damage);
  int first_needed(const PixelRect& damage) const { return first_needed(damage, -1); }
  int first_needed(const PixelRect& damage, int group) const;
  bool backdrop_is_ready(const RenderNode& node) const;

  void paint_node(int index, const PixelRect& damage, int first);
  void paint_contents(int index, const PixelRect& damage, int first, double opacity);
  void paint_group(int index, const PixelRect& damage);
  void paint_backdrop(int index, const PixelRect& damage, double opacity);
  void prepare_tree(std::span<const CALayer> roots, double now);
  void prepare_backdrops(const RenderTree& tree);
  void blur(const RenderNode& backdrop, SmallPicture behind);
  std::uint64_t contents_of_group(int index) const;
  void draw_group(int index, CachedGroup& group);
  void apply_mask(int index);
  SmallPicture small_picture_behind(const RenderNode& backdrop, int reduction) const;
  SmallPicture small_copy_of(const RenderNode& picture, const PixelRect& place, int reduction);
  void forget_unused();

  const RenderNode& node(int index) const { return tree_.nodes()[static_cast<std::size_t>(index)]; }

  const PixelRect screen_;
  const double scale_;
  Surface surface_;
  RenderTree tree_;
  RenderTree tree_ahead_;
  ImageCache images_;
  std::vector<Entry> entries_;
  // The screen below, groups above it: where a backdrop looks through.
  std::vector<Canvas> canvases_;
  std::unordered_map<std::uint64_t, CachedBackdrop> backdrops_;
  std::unordered_map<std::uint64_t, CachedGroup> groups_;
  std::vector<CALayer> last_roots_;
  std::uint64_t last_changes_ = 0;
  bool last_animated_ = false;
  bool damage_all_ = true;
  std::uint64_t state_ahead_ = 0;
  std::uint64_t frames_ = 0;
  std::uint64_t painted_pixels_ = 0;
  std::uint64_t blurs_ = 0;
  std::uint64_t groups_drawn_ = 0;
};

}  // namespace host::quartzcore
