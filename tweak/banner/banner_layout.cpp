#include "tweak/banner/banner_layout.h"

#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"

namespace sonavue {
namespace {

void place_above_bottom(UIView view, CGFloat gap) {
  move_to_y(view, container.frame().size.height - view.frame().size.height - gap);
}

unsigned save_count = 0;

float y_of(UIView view) {
  return static_cast<float>(view.frame().origin.y);
}

void rise(UIView view, float first, CGFloat distance, CGFloat bottom_above, CGFloat gap) {
  if (first - distance - gap <= bottom_above) {
    move_to_y(view, bottom_above + gap);
  } else if (distance >= 0) {
    move_to_y(view, first - distance);
  }
}

}  // namespace

CGFloat banner_height(bool with_texts, bool shortened) {
  return play.frame().size.height + kBannerAroundPlay + (with_texts ? kBannerTexts : 0) -
         (shortened ? kBannerLessOnSmallScreens : 0);
}

CGFloat lift_without_texts() {
  return container1.alpha() != 0 ? 0 : -kLift;
}

void lay_out_below_artwork() {
  move_to_y(container1, art.frame().max_y() + kTextsGap);
  const CGFloat texts_end = container1.frame().max_y() + lift_without_texts();
  move_to_y(play, texts_end + kPlayGap);
  move_to_y(back, texts_end + kSkipGap);
  move_to_y(next, texts_end + kSkipGap);
}

void lay_out_at_bottom() {
  place_above_bottom(back, kSkipGap);
  place_above_bottom(play, kPlayGap);
  place_above_bottom(next, kSkipGap);
  move_to_y(container1, play.frame().origin.y - container1.frame().size.height - kBannerTextsGap);
}

void save_resting_positions() {
  firstContainer1 = y_of(container1);
  firstPlay1 = y_of(play);
  firstNext1 = y_of(next);
  firstBack1 = y_of(back);
  ++save_count;
}

unsigned resting_positions_save_count() {
  return save_count;
}

void rise_against(CGFloat distance) {
  const CGFloat lift = lift_without_texts();
  rise(container1, firstContainer1, distance, art.frame().max_y(), kTextsGap);
  const CGFloat texts_end = container1.frame().max_y();
  rise(play, firstPlay1, distance, texts_end, kPlayGap + lift);
  rise(back, firstBack1, distance, texts_end, kSkipGap + lift);
  rise(next, firstNext1, distance, texts_end, kSkipGap + lift);
}

}  // namespace sonavue
