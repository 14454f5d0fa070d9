#include "tweak/library/song_cell.h"

#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/Foundation/NSTimer.h"
#include "tweak/Sonavue2.h"
#include "tweak/preferences/get_pref.h"

namespace sonavue {
namespace {

constexpr CGFloat kFontSize = 10;
constexpr NSInteger kMostLines = 4;
constexpr CGFloat kPictureScale = 0.6;
constexpr CGSize kPictureSize{30, 30};

UITableViewCell reusable_cell(UITableView table) {
  const auto reused = table.dequeueReusableCellWithIdentifier("Cell"_ns);
  if (reused) return reused;
  return UITableViewCell::alloc().initWithFrame({0, 0, 100, 400}, "Cell"_ns).autorelease();
}

NSString text_of(MPMediaItem item) {
  const auto name = objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyTitle));
  if (name) return name;
  const auto by = objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyArtist));
  return by ? by : "No Data"_ns;
}

}  // namespace

UIImage artwork_of(MPMediaItem item, CGSize size) {
  return objc::cast<MPMediaItemArtwork>(item.valueForProperty(MPMediaItemPropertyArtwork))
      .imageWithSize(size);
}

UIImage empty_cover() {
  return UIImage::imageWithContentsOfFile(
      "/Library/Application Support/Sonavue/empty_cover.png"_ns);
}

UIImage artwork_or_empty(MPMediaItem item, CGSize size) {
  const UIImage artwork = artwork_of(item, size);
  return artwork ? artwork : empty_cover();
}

UITableViewCell song_cell(UITableView table, MPMediaItem item) {
  const UITableViewCell cell = reusable_cell(table);
  const UILabel label = cell.textLabel();
  label.setFont(UIFont::fontWithName("HelveticaNeue"_ns, kFontSize));
  label.setTextColor(color("font_tint"_ns));
  label.setNumberOfLines(kMostLines);
  label.setText(text_of(item));

  cell.imageView().setTransform(CGAffineTransformMakeScale(kPictureScale, kPictureScale));
  cell.setBackgroundColor(UIColor::clearColor());
  const UIView selected = UIView::alloc().init();
  selected.setBackgroundColor(UIColor::colorWithWhite(1, 0.3));
  cell.setSelectedBackgroundView(selected);
  selected.release();
  cell.imageView().setImage(artwork_or_empty(item, kPictureSize));
  return cell;
}

NSIndexPath begin_track_change(NSIndexPath path) {
  if (changeTrack) return nil;
  changeTrack = YES;
  start_track_lock();
  return path;
}

void start_track_lock() {
  // The fire at once is the first tick; the second, one interval later, lifts the lock.
  NSTimer::scheduledTimerWithTimeInterval(time_wait, Spring, "change:"_sel, nil, YES).fire();
}

}  // namespace sonavue
