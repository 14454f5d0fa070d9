#include "host/uikit/scroll/table_view_cell.h"

#include "host/uikit/scroll/cell_accessory.h"
#include "platform/UIKit/UIColor.h"

namespace host::uikit {
namespace {

constexpr CGSize kFirstSize{320, 44};
constexpr CGFloat kCellFontSize = 17;
constexpr CGFloat kSubtitleFontSize = 12;
constexpr CGFloat kSelectionGrey = 217.0 / 255;
constexpr CGFloat kDetailGrey = 142.0 / 255;
constexpr double kSelectionDuration = 0.3;

}  // namespace

UIView TableViewCell::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  self.setBackgroundColor(UIColor::whiteColor());
  content_view_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({{}, frame.size}));
  self.addSubview(content_view_.get());
  return self;
}

UITableViewCell TableViewCell::init_with_style(UITableViewCellStyle style,
                                               NSString reuse_identifier) {
  if (!self.UIView::initWithFrame({{}, kFirstSize})) return nil;
  style_ = style;
  reuse_identifier_.reset(reuse_identifier);
  return self;
}

UITableViewCell TableViewCell::init_with_frame_and_identifier(CGRect frame,
                                                              NSString reuse_identifier) {
  if (!self.initWithStyle(UITableViewCellStyleDefault, reuse_identifier)) return nil;
  self.setFrame(frame);
  return self;
}

void TableViewCell::prepare_for_reuse() {
  self.setHighlighted(NO, NO);
  self.setSelected(NO, NO);
}

objc::Ref<UILabel> TableViewCell::make_label(CGFloat font_size) {
  auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
  label->setFont(UIFont::systemFontOfSize(font_size));
  content_view_->addSubview(label.get());
  self.setNeedsLayout();
  return label;
}

UILabel TableViewCell::text_label() {
  if (!text_label_) text_label_ = make_label(kCellFontSize);
  return text_label_.get();
}

UILabel TableViewCell::detail_text_label() {
  if (detail_text_label_ || style_ == UITableViewCellStyleDefault) return detail_text_label_.get();
  const bool is_subtitle = style_ == UITableViewCellStyleSubtitle;
  detail_text_label_ = make_label(is_subtitle ? kSubtitleFontSize : kCellFontSize);
  if (!is_subtitle) detail_text_label_->setTextColor(UIColor::colorWithWhite(kDetailGrey, 1));
  return detail_text_label_.get();
}

UIImageView TableViewCell::image_view() {
  if (image_view_) return image_view_.get();
  image_view_ = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithFrame({}));
  content_view_->addSubview(image_view_.get());
  self.setNeedsLayout();
  return image_view_.get();
}

void TableViewCell::swap_background(objc::Ref<UIView>& kept, UIView view) {
  if (kept.get() == view) return;
  if (kept && kept->superview() == self) kept->removeFromSuperview();
  kept.reset(view);
  self.setNeedsLayout();
}

void TableViewCell::set_background_view(UIView view) {
  swap_background(background_view_, view);
  if (view) self.insertSubview(view, 0);
}

void TableViewCell::set_selected_background_view(UIView view) {
  if (default_selected_background_view_) default_selected_background_view_->removeFromSuperview();
  swap_background(selected_background_view_, view);
  show_selection(NO);
}

void TableViewCell::set_accessory_view(UIView view) {
  swap_background(accessory_view_, view);
  if (view) self.addSubview(view);
}

void TableViewCell::set_accessory_type(UITableViewCellAccessoryType type) {
  if (type == accessory_type_) return;
  accessory_type_ = type;
  if (standard_accessory_) standard_accessory_->removeFromSuperview();
  standard_accessory_ = make_cell_accessory(type);
  if (standard_accessory_) self.addSubview(standard_accessory_.get());
  self.setNeedsLayout();
}

void TableViewCell::set_indentation_level(NSInteger level) {
  if (level == indentation_level_) return;
  indentation_level_ = level;
  self.setNeedsLayout();
}

void TableViewCell::set_indentation_width(CGFloat width) {
  indentation_width_ = width;
  self.setNeedsLayout();
}

void TableViewCell::set_separator_inset(UIEdgeInsets inset) {
  separator_inset_ = inset;
  self.setNeedsLayout();
}

void TableViewCell::set_selection_style(UITableViewCellSelectionStyle style) {
  selection_style_ = style;
  show_selection(NO);
}

void TableViewCell::set_selected(BOOL selected) {
  self.setSelected(selected, NO);
}

void TableViewCell::set_selected_animated(BOOL selected, BOOL animated) {
  if (selected_ == selected) return;
  selected_ = selected;
  show_selection(animated);
}

void TableViewCell::set_highlighted(BOOL highlighted) {
  self.setHighlighted(highlighted, NO);
}

void TableViewCell::set_highlighted_animated(BOOL highlighted, BOOL animated) {
  if (highlighted_ == highlighted) return;
  highlighted_ = highlighted;
  show_selection(animated);
}

UIView TableViewCell::selection_view() {
  if (selected_background_view_) return selected_background_view_.get();
  if (!default_selected_background_view_) {
    auto grey = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(self.bounds()));
    grey->setBackgroundColor(UIColor::colorWithWhite(kSelectionGrey, 1));
    default_selected_background_view_ = grey;
  }
  return default_selected_background_view_.get();
}

void TableViewCell::show_selection(BOOL animated) {
  const bool marked = selected_ || highlighted_;
  mark_labels(marked ? YES : NO);
  const bool visible = marked && selection_style_ != UITableViewCellSelectionStyleNone;
  if (!visible && !selected_background_view_ && !default_selected_background_view_) return;
  const UIView view = selection_view();
  if (visible && view.superview() != self) {
    self.insertSubview(view, background_view_ ? 1 : 0);
    view.setFrame(self.bounds());
    view.setAlpha(0);
  }
  const auto change = objc::block([=] { view.setAlpha(visible ? 1 : 0); });
  if (animated) {
    UIView::animateWithDuration(kSelectionDuration, change);
  } else {
    UIView::performWithoutAnimation(change);
  }
}

void TableViewCell::mark_labels(BOOL marked) {
  if (text_label_) text_label_->setHighlighted(marked);
  if (detail_text_label_) detail_text_label_->setHighlighted(marked);
  if (image_view_) image_view_->setHighlighted(marked);
}

void TableViewCell::set_separator(UIColor color, UITableViewCellSeparatorStyle style) {
  if (style == UITableViewCellSeparatorStyleNone) {
    if (separator_) separator_->setHidden(YES);
    return;
  }
  if (!separator_) {
    separator_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
    separator_->setUserInteractionEnabled(NO);
    self.addSubview(separator_.get());
    self.setNeedsLayout();
  }
  separator_->setHidden(NO);
  separator_->setBackgroundColor(color);
  if (group_top_) group_top_->setBackgroundColor(color);
}

void TableViewCell::set_place_in_group(bool is_first, bool is_last) {
  in_group_ = true;
  last_in_group_ = is_last;
  if (is_first && separator_ && !group_top_) {
    group_top_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
    group_top_->setUserInteractionEnabled(NO);
    group_top_->setBackgroundColor(separator_->backgroundColor());
    self.addSubview(group_top_.get());
  }
  if (group_top_) group_top_->setHidden(is_first && !separator_->isHidden() ? NO : YES);
  self.setNeedsLayout();
}

}  // namespace host::uikit
