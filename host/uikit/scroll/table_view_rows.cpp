#include <algorithm>

#include "host/uikit/scroll/group_title.h"
#include "host/uikit/scroll/row_paths.h"
#include "host/uikit/scroll/table_view.h"
#include "objc/autorelease_pool.h"
#include "objc/repeated_send.h"

namespace host::uikit {
namespace {

constexpr double kTitleHeight = 28;
/// Measuring creates index paths by the thousand; they are released in batches of this size.
constexpr NSInteger kMeasuredTogether = 1024;

}  // namespace

NSIndexPath TableView::path(RowPlace place) const {
  return row_paths().path(place);
}

std::optional<RowPlace> TableView::place(NSIndexPath path) const {
  if (!path) return std::nullopt;
  const RowPlace place{path.section(), path.row()};
  return layout_.contains(place) ? std::optional(place) : std::nullopt;
}

void TableView::load_if_needed() {
  if (!loaded_) load();
}

void TableView::load() {
  loaded_ = true;
  NSInteger count = data_source_ ? 1 : 0;
  if (const auto asked = source("numberOfSectionsInTableView:"_sel))
    count = asked.numberOfSectionsInTableView(self);
  std::vector<RowLayout::Section> sections;
  for (NSInteger section = 0; section < count; ++section) {
    const auto counting = source("tableView:numberOfRowsInSection:"_sel);
    sections.push_back(measured_section(section, counting.numberOfRowsInSection(self, section)));
  }
  arrange(std::move(sections));
  if (selected_ && !layout_.contains(*selected_)) selected_.reset();
  if (highlighted_ && !layout_.contains(*highlighted_)) highlighted_.reset();
}

void TableView::arrange(std::vector<RowLayout::Section> sections) {
  const double header = header_view_ ? header_view_->bounds().size.height : 0;
  const double footer = footer_view_ ? footer_view_->bounds().size.height : 0;
  layout_ = RowLayout(header, std::move(sections), footer);
  self.setContentSize({self.bounds().size.width, layout_.height()});
  self.setNeedsLayout();
}

void TableView::arrange_again() {
  if (loaded_) arrange(layout_.sections());
}

// Everything may have moved: keeps the cells and repositions them at the next layout.
void TableView::measure_again() {
  if (loaded_) load();
}

RowLayout::Section TableView::measured_section(NSInteger section, NSInteger rows) {
  RowLayout::Section measured{header_height(section), {}, footer_height(section)};
  const auto asked = listener("tableView:heightForRowAtIndexPath:"_sel);
  if (!asked) {
    measured.rows = RowHeights::uniform(rows, row_height_);
    return measured;
  }
  const objc::RepeatedSend<CGFloat, UITableView, NSIndexPath> height_of(
      asked, "tableView:heightForRowAtIndexPath:"_sel);
  RowPaths& paths = row_paths();
  for (NSInteger first = 0; first < rows; first += kMeasuredTogether) {
    const objc::AutoreleasePool pool;
    const NSInteger end = std::min(rows, first + kMeasuredTogether);
    for (NSInteger row = first; row < end; ++row) {
      const double height = height_of(self, paths.path({section, row}));
      measured.rows.add(height < 0 ? row_height_ : height);
    }
  }
  return measured;
}

double TableView::header_height(NSInteger section) const {
  if (const auto asked = listener("tableView:heightForHeaderInSection:"_sel)) {
    const double height = asked.heightForHeaderInSection(self, section);
    if (height >= 0) return height;
  }
  const NSString title =
      source("tableView:titleForHeaderInSection:"_sel).titleForHeaderInSection(self, section);
  if (is_grouped()) {
    if (section_header_height_ >= 0) return section_header_height_;
    return group_title_height(title, GroupEnd::Header, section == 0, self.bounds().size.width);
  }
  if (!listener("tableView:viewForHeaderInSection:"_sel) && !title) return 0;
  return section_header_height_ >= 0 ? section_header_height_ : kTitleHeight;
}

double TableView::footer_height(NSInteger section) const {
  if (const auto asked = listener("tableView:heightForFooterInSection:"_sel)) {
    const double height = asked.heightForFooterInSection(self, section);
    if (height >= 0) return height;
  }
  const NSString title =
      source("tableView:titleForFooterInSection:"_sel).titleForFooterInSection(self, section);
  if (is_grouped()) {
    if (section_footer_height_ >= 0) return section_footer_height_;
    return group_title_height(title, GroupEnd::Footer, false, self.bounds().size.width);
  }
  if (!listener("tableView:viewForFooterInSection:"_sel) && !title) return 0;
  return section_footer_height_ >= 0 ? section_footer_height_ : kTitleHeight;
}

CGRect TableView::rect_of(RowSpan span) const {
  return {0, span.begin, self.bounds().size.width, span.length()};
}

NSInteger TableView::number_of_sections() {
  load_if_needed();
  return layout_.section_count();
}

NSInteger TableView::number_of_rows(NSInteger section) {
  load_if_needed();
  return layout_.row_count(section);
}

CGRect TableView::rect_for_section(NSInteger section) {
  if (section < 0 || section >= number_of_sections()) return {};
  return rect_of(layout_.section(section));
}

CGRect TableView::rect_for_header(NSInteger section) {
  if (section < 0 || section >= number_of_sections()) return {};
  return rect_of(layout_.section_header(section));
}

CGRect TableView::rect_for_footer(NSInteger section) {
  if (section < 0 || section >= number_of_sections()) return {};
  return rect_of(layout_.section_footer(section));
}

CGRect TableView::rect_for_row(NSIndexPath path) {
  load_if_needed();
  const auto where = place(path);
  return where ? rect_of(layout_.row(*where)) : CGRect();
}

NSIndexPath TableView::path_at_point(CGPoint point) {
  load_if_needed();
  const auto where = layout_.row_at(point.y);
  return where ? path(*where) : NSIndexPath();
}

NSIndexPath TableView::path_for_cell(UITableViewCell cell) {
  for (const auto& [where, shown] : cells_)
    if (shown.get() == cell) return path(where);
  return nil;
}

UITableViewCell TableView::shown_cell(RowPlace place) const {
  const auto shown = cells_.find(place);
  return shown == cells_.end() ? UITableViewCell() : shown->second.get();
}

UITableViewCell TableView::cell_for_row(NSIndexPath path) {
  const auto where = place(path);
  return where ? shown_cell(*where) : UITableViewCell();
}

NSArray TableView::visible_cells() {
  self.layoutIfNeeded();
  const auto found = NSMutableArray::array();
  for (const auto& [where, cell] : cells_)
    found.addObject(cell.get());
  return found;
}

NSArray TableView::paths_for_visible_rows() {
  self.layoutIfNeeded();
  const auto found = NSMutableArray::array();
  for (const auto& [where, cell] : cells_)
    found.addObject(path(where));
  return found;
}

void TableView::scroll_to_row(NSIndexPath path, UITableViewScrollPosition position, BOOL animated) {
  load_if_needed();
  const auto where = place(path);
  if (!where) return;
  const CGRect row = rect_of(layout_.row(*where));
  const UIEdgeInsets inset = self.contentInset();
  const CGSize view = self.bounds().size;
  const double room = view.height - inset.top - inset.bottom;
  double top = row.min_y();
  if (position == UITableViewScrollPositionNone) {
    self.scrollRectToVisible(row, animated);
    return;
  }
  if (position == UITableViewScrollPositionMiddle) top -= (room - row.size.height) / 2;
  if (position == UITableViewScrollPositionBottom) top -= room - row.size.height;
  const double lowest = std::max(-inset.top, layout_.height() + inset.bottom - view.height);
  self.setContentOffset({self.contentOffset().x, std::clamp(top - inset.top, -inset.top, lowest)},
                        animated);
}

}  // namespace host::uikit
