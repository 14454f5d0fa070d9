#include "host/applications/music/library.h"

#include "host/applications/music/look.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/Foundation/NSValue.h"
#include "platform/MediaPlayer/MPMediaQuery.h"
#include "platform/UIKit/NSStringDrawing.h"
#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::music {
namespace {

constexpr CGFloat kNoCoverGround = 0.92;
constexpr CGFloat kNoCoverInk = 0.75;
constexpr CGFloat kNoteShare = 0.5;

NSString text_of(MPMediaItem item, NSString property) {
  return objc::cast<NSString>(item.valueForProperty(property));
}

UIImage no_cover(CGFloat side) {
  UIGraphicsBeginImageContextWithOptions({side, side}, YES, 0);
  UIColor::colorWithWhite(kNoCoverGround, 1).setFill();
  UIBezierPath::bezierPathWithRect({0, 0, side, side}).fill();
  UIColor::colorWithWhite(kNoCoverInk, 1).set();
  const UIFont font = UIFont::fontWithName("HelveticaNeue"_ns, side * kNoteShare);
  const CGFloat height = font.lineHeight();
  objc::cast<NSStringDrawing>("\xE2\x99\xAB"_ns)
      .drawInRect({0, (side - height) / 2, side, height}, font, NSLineBreakByClipping,
                  NSTextAlignmentCenter);
  const UIImage made = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return made;
}

}  // namespace

NSArray all_songs() {
  return MPMediaQuery::alloc().init().autorelease().items();
}

MPMediaItem song_with_id(std::uint64_t song) {
  if (song == 0) return nil;
  const auto query = MPMediaQuery::alloc().init().autorelease();
  query.addFilterPredicate(MPMediaPropertyPredicate::predicateWithValue(
      NSNumber::numberWithUnsignedLongLong(song), MPMediaItemPropertyPersistentID));
  const NSArray found = query.items();
  return found.count() > 0 ? objc::cast<MPMediaItem>(found.objectAtIndex(0)) : MPMediaItem();
}

std::uint64_t id_of(MPMediaItem item) {
  const auto number = item.valueForProperty(MPMediaItemPropertyPersistentID);
  return objc::cast<NSNumber>(number).unsignedLongLongValue();
}

NSString title_of(MPMediaItem item) {
  return text_of(item, MPMediaItemPropertyTitle);
}

NSString artist_of(MPMediaItem item) {
  return text_of(item, MPMediaItemPropertyArtist);
}

NSString line_of(MPMediaItem item) {
  const NSString artist = artist_of(item);
  const NSString album = text_of(item, MPMediaItemPropertyAlbumTitle);
  if (!artist) return album;
  if (!album) return artist;
  return artist.stringByAppendingString(" \xE2\x80\x94 "_ns).stringByAppendingString(album);
}

UIImage cover_of(MPMediaItem item, CGFloat side) {
  const auto artwork =
      objc::cast<MPMediaItemArtwork>(item.valueForProperty(MPMediaItemPropertyArtwork));
  const UIImage cover = artwork.imageWithSize({side, side});
  return cover ? cover : no_cover(side);
}

}  // namespace host::music
