#pragma once

#include <cstdint>
#include <deque>
#include <span>
#include <unordered_map>
#include <vector>

#include "host/quartzcore/compositing/image_cache.h"
#include "host/quartzcore/compositing/layer_painter.h"
#include "host/quartzcore/compositing/render_tree.h"
#include "host/quartzcore/pixels/small_picture.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// The pixel rectangles that a frame painted; empty when nothing changed.
using Damage = std::vector<PixelRect>;

/// Paints layer trees into one surface with the screen's pixels. Each frame paints only what
/// differs from the previous frame.
class Compositor {
 public:
  /// Sizes are in pixels; `scale` is in pixels per point.
  Compositor(int width, int height, double scale);

  /// True if the surface already shows `roots`, and nothing in them moves.
  bool is_current(std::span<const CALayer> roots) const;

  /// Updates the surface to show `roots`, drawn in order over black, at the clock time `now`.
  Damage render(std::span<const CALayer> roots, double now);

  /// Blurs the pictures behind faded-out backdrops in advance, so that no frame of their fade has
  /// to. To be called between frames; nearly free when nothing has changed.
  void prepare_ahead(std::span<const CALayer> roots, double now);

  /// ARGB32, `width` × `height`. The same surface for the compositor's lifetime.
  const Surface& surface() const { return surface_; }
  PixelRect screen() const { return screen_; }
  double scale() const { return scale_; }

  std::uint64_t frame_count() const { return frames_; }
  std::uint64_t painted_pixels() const { return painted_pixels_; }
  /// The pixels that layers painted: more than those of the screen where one lies over another.
  std::uint64_t drawn_pixels() const { return drawn_pixels_; }
  /// How often backdrops were blurred and groups drawn, apart from cached results.
  std::uint64_t blur_count() const { return blurs_; }
  std::uint64_t group_count() const { return groups_drawn_; }

  /// Discards the known state of the screen: the next frame paints everything.
  void invalidate() { entries_.clear(), last_changes_ = 0, damage_all_ = true; }

 private:
  struct Entry {
    std::uint64_t serial;
    std::uint64_t signature;
    PixelRect own;
  };
  struct CachedBackdrop {
    std::uint64_t behind = 0;
    // The frames in which it was blurred, and in which it last showed what is behind it.
    std::uint64_t frame = 0;
    std::uint64_t last_ready = 0;
    PixelRect place;
    SmallPicture small;
    // What was blurred, if it was on the screen; otherwise empty.
    SmallPicture source;
    // In screen size; created when the blur is painted a second time.
    Surface surface;
    bool is_enlarged = false;
  };
  /// What is below a node that changes the whole screen in each frame, as a fade does.
  struct Underlay {
    std::uint64_t serial = 0;
    std::uint64_t frame = 0;
    Surface surface;
  };
  struct CachedGroup {
    std::uint64_t contents = 0;
    std::uint64_t frame = 0;
    PixelRect place;
    Surface surface;
    bool is_opaque = false;
  };

  /// Pixels that differ from the previous frame, and the node that changed them. A node that has
  /// gone or whose order has changed is not known (-1): it may have been anywhere.
  struct Change {
    PixelRect place;
    int node;
  };
  using Changes = std::vector<Change>;
  /// What is painted at once: pixels, and the nodes from `first` until before `end` that touch
  /// them. What is before `first` is hidden.
  struct Part {
    PixelRect damage;
    int first;
    int end;
  };

  void prepare_tree(std::span<const CALayer> roots, double now);
  void take_entries();
  Changes find_changes() const;
  static Damage merged(const Changes& changes);
  Part part_of(const PixelRect& damage, int end) const;
  int first_needed(const PixelRect& damage, int group, int end) const;
  bool is_in_group(int index, int outer = -1) const;
  bool hides_what_is_below(int index, int group) const;
  void forget_unused();

  int fading_node(const Changes& changes) const;
  int prepare_underlay(const Changes& changes);
  PixelRect largest_cover(const PixelRect& damage) const;
  bool is_hidden_by_several(int index, const Part& part) const;
  bool blurs_within(const PixelRect& damage) const;
  void paint_screen(const PixelRect& damage, int underlay);
  void paint_part(const PixelRect& place, int underlay);
  void paint(const Surface& surface, const Part& part);
  void paint_node(int index, const Part& part);
  void paint_contents(int index, const Part& part, double opacity);
  void paint_group(int index, const PixelRect& damage);
  std::uint64_t contents_of_group(int index) const;
  void draw_group(int index, CachedGroup& group);
  void apply_mask(int index);

  bool backdrop_is_ready(const RenderNode& node) const;
  bool needs_backdrops() const;
  void prepare_backdrops(Changes& changes);
  void prepare_lone(const RenderTree& tree, const RenderNode& backdrop);
  bool can_update(int index, const PixelRect& unknown) const;
  PixelRect update_backdrop(int index, const Changes& changes);
  void paint_backdrop(int index, const PixelRect& damage, double opacity);
  void blur(const RenderNode& backdrop, SmallPicture behind);
  SmallPicture small_picture_behind(const RenderNode& backdrop, int reduction) const;
  SmallPicture small_copy_of(const RenderNode& picture, const PixelRect& place, int reduction);
  void note_ready_backdrops();

  const RenderNode& node(int index) const { return tree_.nodes()[static_cast<std::size_t>(index)]; }
  int node_count() const { return static_cast<int>(tree_.nodes().size()); }

  const PixelRect screen_;
  const double scale_;
  Surface surface_;
  RenderTree tree_;
  RenderTree tree_ahead_;
  ImageCache images_;
  ShownPictures shown_;
  // What the screen shows, and what it showed in the last frame.
  std::vector<Entry> entries_;
  std::vector<Entry> last_entries_;
  // The screen at the bottom, groups above it: the canvases that a backdrop can see. A deque, since
  // a group begins its own while the one below is painted on.
  std::deque<Canvas> canvases_;
  std::unordered_map<std::uint64_t, CachedBackdrop> backdrops_;
  std::unordered_map<std::uint64_t, CachedGroup> groups_;
  Underlay underlay_;
  std::vector<CALayer> last_roots_;
  std::uint64_t last_changes_ = 0;
  bool last_animated_ = false;
  bool damage_all_ = true;
  std::uint64_t state_ahead_ = 0;
  std::uint64_t frames_ = 0;
  std::uint64_t painted_pixels_ = 0;
  std::uint64_t drawn_pixels_ = 0;
  std::uint64_t blurs_ = 0;
  std::uint64_t groups_drawn_ = 0;
};

}  // namespace host::quartzcore
