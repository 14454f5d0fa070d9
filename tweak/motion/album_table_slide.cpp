#include "tweak/motion/album_table_slide.h"

#include <cstddef>

#include "tweak/look/geometry.h"
#include "tweak/motion/durations.h"

namespace sonavue {
namespace {

struct Swing {
  CGFloat x;
  double seconds;
};

// Overshoots the artwork's left edge, then swings back and forth by less each time.
constexpr Swing kBounce[] = {{-20, 0.2}, {15, 0.15}, {-10, 0.15}, {5, 0.15}, {0, 0.15}};
constexpr std::size_t kSwings = sizeof kBounce / sizeof *kBounce;

// Counts the slides, so that the bounce of a slide that was reversed stops.
unsigned slides = 0;

void swing(std::size_t index, unsigned slide) {
  if (index == kSwings || slide != slides) return;
  UIView::animateWithDuration(kBounce[index].seconds, objc::block([index] {
                                move_to(blurTable, kBounce[index].x, blurTable.frame().origin.y);
                              }),
                              objc::block([index, slide](BOOL) { swing(index + 1, slide); }));
}

}  // namespace

void slide_album_table_aside() {
  ++slides;
  move_to(blurTable, blurTable.frame().size.width, 0);
}

void hide_album_table() {
  UIView::animateWithDuration(kTableSlide, objc::block([] { slide_album_table_aside(); }));
}

void showTable(SpringBoard) {
  if (blurTable.frame().origin.x == 0) {
    hide_album_table();
    return;
  }
  swing(0, ++slides);
}

}  // namespace sonavue
