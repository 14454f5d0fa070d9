#include "tweak/library/song_cell.h"

#include "platform/CoreGraphics/CGAffineTransform.h"
#include "tweak/appearance/color.h"
#include "tweak/look/pieces.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr CGFloat kFontSize = 10;
constexpr NSInteger kMostLines = 4;
constexpr CGFloat kPictureScale = 0.6;
constexpr CGSize kCellPictureSize{30, 30};

UITableViewCell reusable_cell(UITableView table) {
  const auto reused = table.dequeueReusableCellWithIdentifier("Cell"_ns);
  if (reused) return reused;
  return UITableViewCell::alloc().initWithFrame({0, 0, 100, 400}, "Cell"_ns).autorelease();
}

NSString cell_text_of(MPMediaItem item) {
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
  return asset<"empty_cover.png">();
}

UIImage artwork_or_empty(MPMediaItem item, CGSize size) {
  const UIImage artwork = artwork_of(item, size);
  return artwork ? artwork : empty_cover();
}

UITableViewCell song_cell(UITableView table, MPMediaItem item) {
  const UITableViewCell cell = reusable_cell(table);
  const UILabel label = cell.textLabel();
  label.setFont(UIFont::fontWithName(tile_font(), kFontSize));
  label.setTextColor(color(preference::font_tint()));
  label.setNumberOfLines(kMostLines);
  label.setText(cell_text_of(item));

  cell.imageView().setTransform(CGAffineTransformMakeScale(kPictureScale, kPictureScale));
  cell.setBackgroundColor(UIColor::clearColor());
  const auto selected = objc::adopt(UIView::alloc().init());
  selected->setBackgroundColor(UIColor::colorWithWhite(1, 0.3));
  cell.setSelectedBackgroundView(selected);
  cell.imageView().setImage(artwork_or_empty(item, kCellPictureSize));
  return cell;
}

}  // namespace sonavue
