#include "host/quartzcore/compositing/compositor.h"

namespace host::quartzcore {

/// Returns the first node that changes the whole screen and lets something below be seen; -1 if
/// none does.
int Compositor::fading_node(const Changes& changes) const {
  int first = -1;
  for (const Change& change : changes) {
    if (change.node < 0 || !change.place.contains(screen_)) continue;
    if (first < 0 || change.node < first) first = change.node;
  }
  const bool is_seen_through = first >= 0 && first_needed(screen_, -1, node_count()) < first;
  return is_seen_through && !is_in_group(first) ? first : -1;
}

// From the second frame of a fade on, what is below is painted only where it changes.
int Compositor::prepare_underlay(const Changes& changes) {
  const int fading = fading_node(changes);
  if (fading < 0) return -1;
  const Underlay before = std::exchange(underlay_, {node(fading).serial, frames_, {}});
  if (before.serial != underlay_.serial || before.frame + 1 != frames_) return -1;
  PixelRect changed = before.surface ? PixelRect{} : screen_;
  for (const Change& change : changes) {
    if (change.node < fading) changed = united(changed, change.place);
  }
  underlay_.surface = before.surface ? before.surface : reused({}, screen_.width, screen_.height);
  if (!changed.is_empty()) {
    paint(underlay_.surface, part_of(changed, fading));
    cairo_surface_flush(underlay_.surface.get());
  }
  return fading;
}

}  // namespace host::quartzcore
