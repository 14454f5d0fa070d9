#include "tweak/look/geometry.h"

#include "tweak/look/measures.h"

namespace sonavue {

CGFloat icon_screen_offset() {
  if (!musicIcon.isInDock()) return kStatusBarHeight;
  return screen_height() - musicIcon.superview().frame().size.height;
}

CGFloat fade_ratio(CGFloat y) {
  return (screen_height() - y) / (screen_height() * 3 * 0.25);
}

void move_to(UIView view, CGFloat x, CGFloat y) {
  const CGSize size = view.frame().size;
  view.setFrame({x, y, size.width, size.height});
}

void move_to_x(UIView view, CGFloat x) {
  move_to(view, x, view.frame().origin.y);
}

void move_to_y(UIView view, CGFloat y) {
  move_to(view, view.frame().origin.x, y);
}

void cover_screen_with_window() {
  hang_window(screen_height());
}

void hang_window(CGFloat height) {
  window.setFrame({0, height - screen_height(), screen_width(), screen_height()});
}

CGPoint artwork_page_offset() {
  const CGRect frame = art.frame();
  return {frame.origin.x - (screen_width() - frame.size.width) * 0.5, 0};
}

}  // namespace sonavue
