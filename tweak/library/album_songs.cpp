#include "tweak/library/album_songs.h"

#include "tweak/appearance/color.h"
#include "tweak/library/album_tile.h"
#include "tweak/library/song_cell.h"
#include "tweak/look/pieces.h"
#include "ui/taps.h"

namespace sonavue {
namespace {

constexpr double kFadeIn = 0.3;

objc::Ref<MPMediaQuery> query_for_album(NSString album) {
  auto query = objc::adopt(MPMediaQuery::alloc().init());
  query->addFilterPredicate(
      MPMediaPropertyPredicate::predicateWithValue(album, MPMediaItemPropertyAlbumPersistentID));
  return query;
}

NSString persistent_id(MPMediaItem item) {
  return objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyPersistentID)).stringValue();
}

UIImage picture_of(MPMediaItem item, UIView tile, CGFloat side) {
  if (const UIImage artwork = artwork_of(item, {side, side})) return artwork;
  const UIImage cover = cover_of(tile).image();
  return cover ? cover : empty_cover();
}

void add_picture(UIView song, UIImage image, CGFloat side) {
  const CGFloat margin = side / 6;
  const auto picture =
      objc::adopt(UIImageView::alloc().initWithFrame({margin, margin, 2 * side / 3, 2 * side / 3}));
  picture->setImage(image);
  picture->layer().setMasksToBounds(YES);
  picture->layer().setCornerRadius(kSongPictureCorner);
  picture->layer().setBorderWidth(kSongPictureBorder);
  picture->layer().setBorderColor((legibility ? newColor : color(preference::tint())).CGColor());
  song.addSubview(picture);
}

void add_title(UIView song, MPMediaItem item, CGFloat side) {
  const auto label =
      make_tile_title({0, 5 * side / 6, side, side / 6},
                      objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyTitle)));
  label->setTextColor(legibility ? newColor : color(preference::font_tint()));
  song.addSubview(label);
}

void fade_in(UIView view) {
  view.setAlpha(0);
  UIView::animateWithDuration(kFadeIn, objc::block([view] { view.setAlpha(1); }));
}

/// Adds the song's tile to the grid and returns the tile's bottom-right corner.
CGPoint add_song(SpringBoard self, UIScrollView grid, UIView tile, MPMediaItem item,
                 NSUInteger index) {
  const CGFloat side = grid_side(grid.frame().size.width);
  const auto song = objc::adopt(UIView::alloc().initWithFrame(grid_frame(index, side)));
  add_picture(song, picture_of(item, tile, side), side);
  add_title(song, item, side);
  song->layer().setName(persistent_id(item));
  add_tap(song, self, "playSongInAlbum:"_sel);
  song->setUserInteractionEnabled(YES);
  grid.addSubview(song);
  fade_in(song);
  return {song->frame().max_x(), song->frame().max_y()};
}

CGFloat scrollable(CGFloat content, CGFloat visible) {
  return content < visible ? visible + 1 : content;
}

MPMediaItem listed_song(NSString wanted) {
  for (const auto item : songItems.of<MPMediaItem>()) {
    if (persistent_id(item).isEqualToString(wanted)) return item;
  }
  return nil;
}

void zoom_out() {
  objc::send<>(Spring, "zoomOutAlbum:"_sel, albums.gestureRecognizers().objectAtIndex(0));
}

}  // namespace

objc::Ref<UIScrollView> make_song_grid(SpringBoard self, UIView tile, CGFloat side) {
  auto grid = objc::adopt(UIScrollView::alloc().initWithFrame({0, 0, side, side}));
  grid->setShowsHorizontalScrollIndicator(NO);
  grid->setShowsVerticalScrollIndicator(NO);
  grid->setBackgroundColor(UIColor::clearColor());
  NSUInteger index = 0;
  CGPoint corner{};
  const auto query = query_for_album(tile.layer().name());
  for (const auto item : query->items().of<MPMediaItem>())
    corner = add_song(self, grid, tile, item, index++);
  grid->setContentSize(
      {scrollable(corner.x + kTileGap, side), scrollable(corner.y + kTileGap, side)});
  return grid;
}

void playSongInAlbum(SpringBoard, UITapGestureRecognizer tap) {
  if (!art.image()) {
    zoom_out();
    mc.togglePlayPause();
    return;
  }
  const MPMediaItem item = listed_song(tap.view().layer().name());
  if (!item) return;
  zoom_out();
  musicPlayer.setQueueWithQuery(fullList);
  musicPlayer.setNowPlayingItem(item);
  musicPlayer.prepareToPlay();
  musicPlayer.play();
}

}  // namespace sonavue
