#include "tweak/library/album_strip.h"

#include "platform/Foundation/NSSet.h"
#include "platform/Foundation/NSValue.h"
#include "tweak/library/album_tile.h"
#include "tweak/library/song_cell.h"
#include "tweak/look/geometry.h"
#include "tweak/look/pieces.h"
#include "ui/taps.h"

namespace sonavue {
namespace {

constexpr int kMusic = 1;
constexpr CGSize kTilePictureSize{120, 120};

void add_tile_picture(UIView tile, MPMediaItem item, CGFloat side) {
  const CGFloat extent = side - kTileTitleHeight;
  const auto picture =
      objc::adopt(UIImageView::alloc().initWithFrame({kCoverInset, 0, extent, extent}));
  picture->setClipsToBounds(YES);
  picture->layer().setCornerRadius(kCoverCorner);
  picture->layer().setBorderWidth(kCoverBorder);
  picture->layer().setBorderColor(UIColor::whiteColor().CGColor());
  picture->setImage(artwork_or_empty(item, kTilePictureSize));
  tile.addSubview(picture);
}

void add_tile_title(UIView tile, MPMediaItem item, CGFloat side) {
  const auto label =
      make_tile_title({0, side - kTileTitleHeight, side, kTileTitleHeight},
                      objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyAlbumTitle)));
  label->setTextColor(UIColor::whiteColor());
  tile.addSubview(label);
}

void add_tile(SpringBoard self, MPMediaItem item, NSString album, NSUInteger index) {
  const CGFloat side = grid_side(albums.frame().size.width);
  const auto tile = objc::adopt(UIView::alloc().initWithFrame(grid_frame(index, side)));
  add_tile_picture(tile, item, side);
  add_tile_title(tile, item, side);
  tile->layer().setName(album);
  add_tap(tile, self, "zoomInAlbum:"_sel);
  albums.addSubview(tile);
  albums.setContentSize({albums.frame().size.width, tile->frame().max_y() + kTileGap});
}

// Nil for items that are not music or have no album.
NSString album_of(MPMediaItem item) {
  const auto type = objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyMediaType));
  if (type.intValue() != kMusic) return nil;
  return objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyAlbumPersistentID))
      .stringValue();
}

void make_tiles(SpringBoard self) {
  const auto query = objc::adopt(MPMediaQuery::alloc().init());
  const auto seen = objc::adopt(NSMutableSet::alloc().init());
  for (const auto item : query->items().of<MPMediaItem>()) {
    const NSString album = album_of(item);
    if (!album || seen->containsObject(album)) continue;
    add_tile(self, item, album, seen->count());
    seen->addObject(album);
  }
}

}  // namespace

void make_album_strip(SpringBoard self) {
  const CGRect list = tableView.frame();
  const CGFloat width = 2 * screen_width() / 3;
  const CGFloat x = 2 * screen_width() + screen_width() / 6;
  const auto strip =
      objc::adopt(UIScrollView::alloc().initWithFrame({x, 0, width, list.size.height}));
  albums = strip;
  strip->setBackgroundColor(UIColor::clearColor());
  add_tap(strip, self, "zoomOutAlbum:"_sel);
  make_tiles(self);
  container.addSubview(strip);

  top1 = add_line_to_pages({x, 0, width, kListLine});
  bottom1 = add_line_to_pages({x, list.size.height - kListLine, width, kListLine});
}

}  // namespace sonavue
