#include <algorithm>

#include "host/runtime/on_pixel.h"
#include "host/uikit/scroll/table_view_cell.h"
#include "platform/UIKit/UITableView.h"

namespace host::uikit {
namespace {

constexpr CGFloat kCellMargin = 15;
constexpr CGFloat kAccessoryMargin = 15;
/// The gap between the texts of a row that shows them side by side.
constexpr CGFloat kTextGap = 6;

UITableView table_of(UITableViewCell cell) {
  for (UIView view = cell.superview(); view; view = view.superview())
    if (view.isKindOfClass(UITableView::cls())) return objc::cast<UITableView>(view);
  return nil;
}

}  // namespace

void TableViewCell::layout_subviews() {
  super("layoutSubviews"_sel);
  const CGRect bounds = self.bounds();
  if (background_view_) background_view_->setFrame(bounds);
  if (selected_background_view_) selected_background_view_->setFrame(bounds);
  if (default_selected_background_view_) default_selected_background_view_->setFrame(bounds);
  place_separator(bounds);
  const CGFloat right = place_accessory(bounds);
  content_view_->setFrame({0, 0, right, bounds.size.height});
  const CGFloat indent = static_cast<CGFloat>(indentation_level_) * indentation_width_;
  const CGRect content{indent, 0, right - indent, bounds.size.height};
  place_texts(content, place_picture(content));
}

// The table's inset applies unless the cell has an inset of its own.
void TableViewCell::place_separator(CGRect bounds) {
  if (!separator_) return;
  const UITableView table = table_of(self);
  const UIEdgeInsets own_default{0, kCellMargin, 0, 0};
  const UIEdgeInsets inset =
      table && separator_inset_ == own_default ? table.separatorInset() : separator_inset_;
  const CGFloat height = hairline();
  const CGFloat left = separator_left(inset);
  const CGFloat right = last_in_group_ ? 0 : inset.right;
  separator_->setFrame(
      {left, bounds.size.height - height, std::max(0.0, bounds.size.width - left - right), height});
  if (group_top_) group_top_->setFrame({0, 0, bounds.size.width, height});
}

// Between the rows of a group the line begins where their texts do, behind the icons.
CGFloat TableViewCell::separator_left(const UIEdgeInsets& inset) const {
  if (!in_group_) return inset.left;
  if (last_in_group_) return 0;
  const bool has_icon = image_view_ && image_view_->image();
  return has_icon ? inset.left + image_view_->image().size().width + kCellMargin : inset.left;
}

CGFloat TableViewCell::place_accessory(CGRect bounds) {
  if (standard_accessory_) standard_accessory_->setHidden(accessory_view_ ? YES : NO);
  const UIView shown = accessory_view_ ? accessory_view_.get() : standard_accessory_.get();
  if (!shown) return bounds.size.width;
  const CGSize size = shown.bounds().size;
  const CGFloat left = bounds.size.width - kAccessoryMargin - size.width;
  shown.setCenter({left + size.width / 2, bounds.size.height / 2});
  return left;
}

// By bounds and centre: the transform of the image's view belongs to the cell's owner.
CGFloat TableViewCell::place_picture(CGRect content) {
  const CGFloat left = content.min_x() + kCellMargin;
  if (!image_view_ || !image_view_->image()) return left;
  CGSize size = image_view_->image().size();
  if (size.height > content.size.height && size.height > 0) {
    size.width *= content.size.height / size.height;
    size.height = content.size.height;
  }
  image_view_->setBounds({0, 0, size.width, size.height});
  image_view_->setCenter({on_pixel(left + size.width / 2), on_pixel(content.size.height / 2)});
  return left + size.width + kCellMargin;
}

void TableViewCell::place_texts(CGRect content, CGFloat left) {
  const CGFloat right = std::max(left, content.max_x() - kCellMargin);
  const CGFloat height = content.size.height;
  const CGSize room{right - left, height};
  const bool has_detail = detail_text_label_ && detail_text_label_->text();
  if (!has_detail) {
    if (detail_text_label_) detail_text_label_->setFrame({});
    if (text_label_) text_label_->setFrame({left, 0, room.width, height});
    return;
  }
  const CGSize detail = detail_text_label_->sizeThatFits(room);
  if (style_ == UITableViewCellStyleSubtitle) {
    const CGSize text = text_label_ ? text_label_->sizeThatFits(room) : CGSize();
    const CGFloat top = on_pixel((height - text.height - detail.height) / 2);
    if (text_label_) text_label_->setFrame({left, top, room.width, text.height});
    detail_text_label_->setFrame({left, top + text.height, room.width, detail.height});
    return;
  }
  // The text comes first; the detail gets the rest of the row.
  const CGFloat text_width =
      text_label_ ? std::min(text_label_->sizeThatFits(room).width, room.width) : 0;
  const CGFloat gap = text_width > 0 ? kTextGap : 0;
  const CGFloat detail_width = std::clamp(room.width - text_width - gap, 0.0, detail.width);
  if (text_label_) text_label_->setFrame({left, 0, text_width, height});
  detail_text_label_->setFrame({right - detail_width, 0, detail_width, height});
}

CGSize TableViewCell::size_that_fits(CGSize size) {
  const UITableView table = table_of(self);
  return {size.width, table ? table.rowHeight() : self.bounds().size.height};
}

}  // namespace host::uikit
