#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UITableViewCell.h"

namespace host::uikit {

/// One row of a table: image, text and accessory from left to right. Parts that are never requested
/// are never created.
class TableViewCell : public objc::Implementation<TableViewCell, UITableViewCell> {
 public:
  explicit TableViewCell(UITableViewCell owner) : Implementation(owner) {}

  UIView init_with_frame(CGRect frame);
  UITableViewCell init_with_style(UITableViewCellStyle style, NSString reuse_identifier);
  UITableViewCell init_with_frame_and_identifier(CGRect frame, NSString reuse_identifier);
  NSString reuse_identifier() const { return reuse_identifier_.get(); }
  void prepare_for_reuse();
  void layout_subviews();
  CGSize size_that_fits(CGSize size);

  UIView content_view() const { return content_view_.get(); }
  UILabel text_label();
  UILabel detail_text_label();
  UIImageView image_view();
  UIView background_view() const { return background_view_.get(); }
  void set_background_view(UIView view);
  UIView selected_background_view() const { return selected_background_view_.get(); }
  void set_selected_background_view(UIView view);
  UIView accessory_view() const { return accessory_view_.get(); }
  void set_accessory_view(UIView view);
  UITableViewCellAccessoryType accessory_type() const { return accessory_type_; }
  void set_accessory_type(UITableViewCellAccessoryType type);
  NSInteger indentation_level() const { return indentation_level_; }
  void set_indentation_level(NSInteger level);
  CGFloat indentation_width() const { return indentation_width_; }
  void set_indentation_width(CGFloat width);
  UIEdgeInsets separator_inset() const { return separator_inset_; }
  void set_separator_inset(UIEdgeInsets inset);

  UITableViewCellSelectionStyle selection_style() const { return selection_style_; }
  void set_selection_style(UITableViewCellSelectionStyle style);
  BOOL is_selected() const { return selected_; }
  void set_selected(BOOL selected);
  void set_selected_animated(BOOL selected, BOOL animated);
  BOOL is_highlighted() const { return highlighted_; }
  void set_highlighted(BOOL highlighted);
  void set_highlighted_animated(BOOL highlighted, BOOL animated);

  /// In a group, lines run across the full width above the first row and below the last.
  void set_place_in_group(bool is_first, bool is_last);
  /// Sets the line below the row, as the table specifies it.
  void set_separator(UIColor color, UITableViewCellSeparatorStyle style);

 private:
  void swap_background(objc::Ref<UIView>& kept, UIView view);
  void show_selection(BOOL animated);
  void mark_labels(BOOL marked);
  UIView selection_view();
  void place_separator(CGRect bounds);
  CGFloat separator_left(const UIEdgeInsets& inset) const;
  CGFloat place_accessory(CGRect bounds);
  CGFloat place_picture(CGRect content);
  void place_texts(CGRect content, CGFloat left);
  objc::Ref<UILabel> make_label(CGFloat font_size);

  UITableViewCellStyle style_ = UITableViewCellStyleDefault;
  objc::Ref<NSString> reuse_identifier_;
  objc::Ref<UIView> content_view_;
  objc::Ref<UILabel> text_label_;
  objc::Ref<UILabel> detail_text_label_;
  objc::Ref<UIImageView> image_view_;
  objc::Ref<UIView> background_view_;
  objc::Ref<UIView> selected_background_view_;
  objc::Ref<UIView> default_selected_background_view_;
  objc::Ref<UIView> accessory_view_;
  objc::Ref<UIView> standard_accessory_;
  objc::Ref<UIView> separator_;
  objc::Ref<UIView> group_top_;
  bool in_group_ = false;
  bool last_in_group_ = false;
  UIEdgeInsets separator_inset_{0, 15, 0, 0};
  NSInteger indentation_level_ = 0;
  CGFloat indentation_width_ = 10;
  UITableViewCellAccessoryType accessory_type_ = UITableViewCellAccessoryNone;
  UITableViewCellSelectionStyle selection_style_ = UITableViewCellSelectionStyleDefault;
  BOOL selected_ = NO;
  BOOL highlighted_ = NO;
};

void export_table_view_cell();

}  // namespace host::uikit
