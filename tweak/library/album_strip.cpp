#include "platform/Foundation/NSSet.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tweak/library/album_tile.h"
#include "tweak/library/song_cell.h"
#include "tweak/look/geometry.h"
#include "tweak/look/pieces.h"

// The strip of album tiles: two columns, a tile for each album of the library, in the library's
// order.

namespace sonavue {
namespace {

constexpr int kMusic = 1;
constexpr CGFloat kPictureInset = 8;
constexpr CGFloat kPictureBorder = 2.5;
constexpr CGSize kPictureSize{120, 120};
constexpr CGFloat kTitleHeight = 16;

void add_picture(UIView tile, MPMediaItem item, CGFloat side) {
  const CGFloat extent = side - kTitleHeight;
  const auto picture = UIImageView::alloc().initWithFrame({kPictureInset, 0, extent, extent});
  picture.setClipsToBounds(YES);
  picture.layer().setCornerRadius(kCoverCorner);
  picture.layer().setBorderWidth(kPictureBorder);
  picture.layer().setBorderColor(UIColor::whiteColor().CGColor());
  picture.setImage(artwork_or_empty(item, kPictureSize));
  tile.addSubview(picture);
  picture.release();
}

void add_title(UIView tile, MPMediaItem item, CGFloat side) {
  const UILabel label =
      make_tile_title({0, side - kTitleHeight, side, kTitleHeight},
                      objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyAlbumTitle)));
  label.setTextColor(UIColor::whiteColor());
  tile.addSubview(label);
  label.release();
}

void add_tile(SpringBoard self, MPMediaItem item, NSString album, NSUInteger index) {
  const CGFloat side = grid_side(albums.frame().size.width);
  const UIView tile = UIView::alloc().initWithFrame(grid_frame(index, side));
  add_picture(tile, item, side);
  add_title(tile, item, side);
  tile.layer().setName(album);
  add_tap(tile, self, "zoomInAlbum:"_sel);
  albums.addSubview(tile);
  tile.release();
  albums.setContentSize({albums.frame().size.width, tile.frame().max_y() + kTileGap});
}

// Empty for what is no music or belongs to no album.
NSString album_of(MPMediaItem item) {
  const auto type = objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyMediaType));
  if (type.intValue() != kMusic) return nil;
  return objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyAlbumPersistentID))
      .stringValue();
}

void make_tiles(SpringBoard self) {
  const MPMediaQuery query = MPMediaQuery::alloc().init();
  const NSMutableSet seen = NSMutableSet::alloc().init();
  for (const auto item : query.items().of<MPMediaItem>()) {
    const NSString album = album_of(item);
    if (!album || seen.containsObject(album)) continue;
    add_tile(self, item, album, seen.count());
    seen.addObject(album);
  }
  seen.release();
  query.release();
}

}  // namespace

UILabel make_tile_title(CGRect frame, NSString text) {
  const auto label = UILabel::alloc().initWithFrame(frame);
  label.setNumberOfLines(1);
  label.setTextAlignment(NSTextAlignmentCenter);
  label.setFont(UIFont::fontWithName(tile_font(), kTileTitleSize));
  label.setText(text);
  return label;
}

void add_tap(UIView view, objc::Object target, objc::Sel action) {
  const auto tap = UITapGestureRecognizer::alloc().initWithTarget(target, action);
  view.addGestureRecognizer(tap);
  tap.release();
}

void make_album_strip(SpringBoard self) {
  const CGRect list = tableView.frame();
  const CGFloat width = 2 * screen_width() / 3;
  const CGFloat x = 2 * screen_width() + screen_width() / 6;
  albums = UIScrollView::alloc().initWithFrame({x, 0, width, list.size.height});
  albums.setBackgroundColor(UIColor::clearColor());
  add_tap(albums, self, "zoomOutAlbum:"_sel);
  make_tiles(self);
  container.addSubview(albums);
  albums.release();

  top1 = make_line({x, 0, width, 1});
  bottom1 = make_line({x, list.size.height - 1, width, 1});
  for (const UIView line : {top1, bottom1}) {
    container.addSubview(line);
    line.release();
  }
}

}  // namespace sonavue
