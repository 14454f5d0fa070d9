#include "tweak/library/album_zoom.h"

#include "platform/QuartzCore/CABasicAnimation.h"
#include "tweak/appearance/blur_style.h"
#include "tweak/library/album_songs.h"
#include "tweak/library/album_tile.h"
#include "tweak/look/pieces.h"

namespace sonavue {
namespace {

constexpr double kGrow = 0.2;
constexpr double kShrink = 0.3;
constexpr double kFade = 0.2;
constexpr double kHeadingFade = 0.3;

struct Zoom {
  UIView tile;
  UIImageView cover;
  UILabel title;
  _UIBackdropView backdrop;
};

CGFloat zoomed_side() {
  return albums.frame().size.width - 2 * kTileGap;
}

void round_cover(UIImageView cover, CGFloat from, CGFloat to) {
  const auto animation = CABasicAnimation::animationWithKeyPath("cornerRadius"_ns);
  animation.setTimingFunction(
      CAMediaTimingFunction::functionWithName(kCAMediaTimingFunctionLinear));
  animation.setFromValue(NSNumber::numberWithDouble(from));
  animation.setToValue(NSNumber::numberWithDouble(to));
  animation.setDuration(kHeadingFade);
  cover.layer().addAnimation(animation, "cornerRadius"_ns);
  cover.layer().setCornerRadius(to);
}

objc::Ref<_UIBackdropView> make_backdrop(UIView tile) {
  const CGSize size = tile.frame().size;
  auto backdrop = objc::adopt(_UIBackdropView::alloc().initWithFrame(
      {0, 0, size.width, size.height}, YES, chosen_blur().settings));
  backdrop->setUserInteractionEnabled(YES);
  backdrop->setAlpha(0);
  return backdrop;
}

void save_places(const Zoom& zoom) {
  oldPos = zoom.tile.frame();
  oldPosIcon = zoom.cover.frame();
  oldPosLbl = zoom.title.frame();
}

void grow(const Zoom& zoom) {
  for (const auto other : albums.subviews().of<UIView>()) {
    if (other != zoom.tile) other.setAlpha(0);
  }
  const CGFloat side = zoomed_side();
  zoom.tile.setAlpha(1);
  zoom.tile.setFrame(
      {kTileGap, albums.contentOffset().y + (albums.frame().size.height - side) / 2, side, side});
  zoom.cover.setFrame({0, 0, side, side});
  UIView::animateWithDuration(kFade,
                              objc::block([backdrop = zoom.backdrop] { backdrop.setAlpha(1); }));
}

void show_heading(const Zoom& zoom) {
  zoom.title.setFrame({0, -kZoomedTitleHeight, zoomed_side(), kZoomedTitleHeight});
  zoom.title.setFont(UIFont::fontWithName("HelveticaNeue-Light"_ns, kZoomedTitleSize));
  round_cover(zoom.cover, kCoverCorner, kZoomedCoverCorner);
  zoom.title.setAlpha(0);
  UIView::animateWithDuration(kHeadingFade,
                              objc::block([title = zoom.title] { title.setAlpha(1); }));
}

UIView zoomed_tile() {
  for (const auto tile : albums.subviews().of<UIView>()) {
    if (tile.alpha() == 1) return tile;
  }
  return nil;
}

_UIBackdropView backdrop_of(UIImageView cover) {
  for (const auto view : cover.subviews().of<UIView>()) {
    if (view.isKindOfClass(_UIBackdropView::cls())) return objc::cast<_UIBackdropView>(view);
  }
  return nil;
}

void fade_backdrop_out(const Zoom& zoom) {
  UIView::animateWithDuration(kFade, objc::block([zoom] {
                                zoom.backdrop.setAlpha(0);
                                zoom.title.setAlpha(1);
                              }),
                              objc::block([zoom](BOOL) { zoom.backdrop.removeFromSuperview(); }));
}

void shrink(const Zoom& zoom) {
  zoom.title.setFont(UIFont::fontWithName(tile_font(), kTileTitleSize));
  round_cover(zoom.cover, kZoomedCoverCorner, kCoverCorner);
  UIView::animateWithDuration(kShrink, objc::block([zoom] {
                                for (const auto tile : albums.subviews().of<UIView>())
                                  tile.setAlpha(1);
                                zoom.tile.setFrame(oldPos);
                                zoom.cover.setFrame(oldPosIcon);
                                zoom.title.setFrame(oldPosLbl);
                              }),
                              objc::block([zoom](BOOL) { fade_backdrop_out(zoom); }));
}

}  // namespace

void zoomInAlbum(SpringBoard self, UITapGestureRecognizer tap) {
  if (!albums.isScrollEnabled()) return;
  const UIView tile = tap.view();
  // The tile is still shrinking, so its frame is not yet its resting frame.
  if (backdrop_of(cover_of(tile))) return;
  albums.bringSubviewToFront(tile);
  const auto backdrop = make_backdrop(tile);
  const Zoom zoom{tile, cover_of(tile), title_of(tile), backdrop};
  save_places(zoom);
  // The songs are subviews of the cover, which has to pass on their taps.
  zoom.cover.setUserInteractionEnabled(YES);
  zoom.cover.addSubview(backdrop);
  albums.setScrollEnabled(NO);
  const auto grid = make_song_grid(self, tile, zoomed_side());
  backdrop->addSubview(grid);
  UIView::animateWithDuration(kGrow, objc::block([zoom] { grow(zoom); }),
                              objc::block([zoom](BOOL) { show_heading(zoom); }));
}

void zoomOutAlbum(SpringBoard, UITapGestureRecognizer) {
  if (albums.isScrollEnabled()) return;
  albums.setScrollEnabled(YES);
  const UIView tile = zoomed_tile();
  if (!tile) return;
  const Zoom zoom{tile, cover_of(tile), title_of(tile), backdrop_of(cover_of(tile))};
  UIView::animateWithDuration(kFade, objc::block([zoom] { zoom.title.setAlpha(0); }),
                              objc::block([zoom](BOOL) { shrink(zoom); }));
}

}  // namespace sonavue
