#pragma once

#include <map>
#include <optional>
#include <string>

#include "host/uikit/scroll/cell_pool.h"
#include "host/uikit/scroll/group_title.h"
#include "host/uikit/scroll_physics/row_layout.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UITableView.h"

namespace host::uikit {

/// A column of rows, of which only the visible ones have cells.
class TableView : public objc::Implementation<TableView, UITableView> {
 public:
  explicit TableView(UITableView owner) : Implementation(owner) {}

  UIView init_with_frame(CGRect frame);
  UITableView init_with_style(CGRect frame, UITableViewStyle style);
  UITableViewStyle style() const { return style_; }
  objc::Object data_source() const { return data_source_; }
  void set_data_source(objc::Object source);
  void set_delegate(objc::Object delegate);
  void reload_data();
  void reload_rows(NSArray paths, NSInteger animation);
  void layout_subviews();
  void did_move_to_window();
  void set_frame(CGRect frame);
  void set_bounds(CGRect bounds);

  // Looks.
  CGFloat row_height() const { return row_height_; }
  void set_row_height(CGFloat height);
  CGFloat section_header_height() const { return section_header_height_; }
  void set_section_header_height(CGFloat height);
  CGFloat section_footer_height() const { return section_footer_height_; }
  void set_section_footer_height(CGFloat height);
  UIView header_view() const { return header_view_.get(); }
  void set_header_view(UIView view);
  UIView footer_view() const { return footer_view_.get(); }
  void set_footer_view(UIView view);
  UIView background_view() const { return background_view_.get(); }
  void set_background_view(UIView view);
  UITableViewCellSeparatorStyle separator_style() const { return separator_style_; }
  void set_separator_style(UITableViewCellSeparatorStyle style);
  UIColor separator_color() const;
  void set_separator_color(UIColor color);
  UIEdgeInsets separator_inset() const { return separator_inset_; }
  void set_separator_inset(UIEdgeInsets inset);

  // Rows.
  NSInteger number_of_sections();
  NSInteger number_of_rows(NSInteger section);
  CGRect rect_for_section(NSInteger section);
  CGRect rect_for_header(NSInteger section);
  CGRect rect_for_footer(NSInteger section);
  CGRect rect_for_row(NSIndexPath path);
  NSIndexPath path_at_point(CGPoint point);
  NSIndexPath path_for_cell(UITableViewCell cell);
  UITableViewCell cell_for_row(NSIndexPath path);
  NSArray visible_cells();
  NSArray paths_for_visible_rows();
  UITableViewCell dequeue(NSString identifier);
  UITableViewCell dequeue_for_path(NSString identifier, NSIndexPath path);
  void register_class(objc::Class cls, NSString identifier);
  void scroll_to_row(NSIndexPath path, UITableViewScrollPosition position, BOOL animated);

  // Selection.
  BOOL allows_selection() const { return allows_selection_; }
  void set_allows_selection(BOOL allows) { allows_selection_ = allows; }
  NSIndexPath path_for_selected_row();
  void select_row(NSIndexPath path, BOOL animated, UITableViewScrollPosition position);
  void deselect_row(NSIndexPath path, BOOL animated);
  void touches_began(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);

 private:
  using Cells = std::map<RowPlace, objc::Ref<UITableViewCell>>;

  UITableViewDataSource source(objc::Sel selector) const;
  UITableViewDelegate listener(objc::Sel selector) const;

  // Measuring.
  void load_if_needed();
  void load();
  void arrange(std::vector<RowLayout::Section> sections);
  void arrange_again();
  void measure_again();
  RowLayout::Section measured_section(NSInteger section, NSInteger rows);
  double header_height(NSInteger section) const;
  double footer_height(NSInteger section) const;
  RowSpan visible_span() const;
  CGRect rect_of(RowSpan span) const;

  // Visible cells.
  void show_rows_in_sight();
  void show_row(RowPlace place);
  void put_away(RowPlace place, UITableViewCell cell);
  void put_all_away();
  void place_accessory_views();
  void place_section_headers();
  bool is_grouped() const { return style_ == UITableViewStyleGrouped; }
  UIView title_view(NSString title, GroupEnd end, RowSpan span) const;
  UIView section_header(NSInteger section);
  UIView section_footer(NSInteger section);
  void swap_view(objc::Ref<UIView>& kept, UIView view);
  UITableViewCell shown_cell(RowPlace place) const;
  NSIndexPath path(RowPlace place) const;
  std::optional<RowPlace> place(NSIndexPath path) const;

  // Selecting.
  void highlight(std::optional<RowPlace> place);
  void choose(RowPlace place);
  void set_selected(std::optional<RowPlace> place, BOOL animated);

  objc::Object data_source_;
  RowLayout layout_;
  Cells cells_;
  CellPool pool_;
  std::map<std::string, objc::Class> registered_;
  std::map<NSInteger, objc::Ref<UIView>> section_headers_;
  std::map<NSInteger, objc::Ref<UIView>> section_footers_;
  objc::Ref<UIView> header_view_;
  objc::Ref<UIView> footer_view_;
  objc::Ref<UIView> background_view_;
  objc::Ref<UIColor> separator_color_;
  UIEdgeInsets separator_inset_{0, 15, 0, 0};
  CGFloat row_height_ = 44;
  CGFloat section_header_height_ = UITableViewAutomaticDimension;
  CGFloat section_footer_height_ = UITableViewAutomaticDimension;
  UITableViewStyle style_ = UITableViewStylePlain;
  UITableViewCellSeparatorStyle separator_style_ = UITableViewCellSeparatorStyleSingleLine;
  std::optional<RowPlace> highlighted_;
  std::optional<RowPlace> selected_;
  bool loaded_ = false;
  bool showing_ = false;
  BOOL allows_selection_ = YES;
};

void export_table_view();

}  // namespace host::uikit
