#include <algorithm>

#include "host/uikit/scroll/section_title.h"
#include "host/uikit/scroll/table_view.h"
#include "host/uikit/scroll/table_view_cell.h"

namespace host::uikit {

RowSpan TableView::visible_span() const {
  const CGRect bounds = self.bounds();
  return {bounds.min_y(), bounds.max_y()};
}

void TableView::layout_subviews() {
  super("layoutSubviews"_sel);
  // Guards against recursion: a data source may lay out the table while it creates a cell.
  if (showing_) return;
  showing_ = true;
  load_if_needed();
  place_accessory_views();
  show_rows_in_sight();
  place_section_headers();
  showing_ = false;
}

void TableView::place_accessory_views() {
  const CGFloat width = self.bounds().size.width;
  if (background_view_) background_view_->setFrame(self.bounds());
  if (header_view_) header_view_->setFrame({0, 0, width, header_view_->bounds().size.height});
  if (footer_view_) footer_view_->setFrame(rect_of(layout_.table_footer()));
}

void TableView::show_rows_in_sight() {
  const auto wanted = layout_.rows_in(visible_span());
  const Cells before = cells_;
  for (const auto& [where, cell] : before) {
    if (std::binary_search(wanted.begin(), wanted.end(), where)) continue;
    cells_.erase(where);
    put_away(where, cell.get());
  }
  for (const RowPlace where : wanted) {
    const UITableViewCell shown = shown_cell(where);
    if (!shown) {
      show_row(where);
    } else if (const CGRect frame = rect_of(layout_.row(where)); shown.frame() != frame) {
      shown.setFrame(frame);
    }
  }
}

void TableView::show_row(RowPlace place) {
  const auto asked = source("tableView:cellForRowAtIndexPath:"_sel);
  const NSIndexPath shown_path = path(place);
  const UITableViewCell cell = asked.cellForRowAtIndexPath(self, shown_path);
  if (!cell || !layout_.contains(place)) return;
  cells_.insert_or_assign(place, objc::Ref<UITableViewCell>::retain(cell));
  objc::state_of<TableViewCell>(cell).set_separator(separator_color(), separator_style_);
  if (is_grouped())
    objc::state_of<TableViewCell>(cell).set_place_in_group(
        place.row == 0, place.row + 1 == layout_.row_count(place.section));
  if (const auto indenting = listener("tableView:indentationLevelForRowAtIndexPath:"_sel))
    cell.setIndentationLevel(indenting.indentationLevelForRowAtIndexPath(self, shown_path));
  // A row that comes into sight during an animation appears without one.
  UIView::performWithoutAnimation(objc::block([&, this] {
    cell.setFrame(rect_of(layout_.row(place)));
    cell.setSelected(selected_ == place ? YES : NO, NO);
    cell.setHighlighted(highlighted_ == place ? YES : NO, NO);
    listener("tableView:willDisplayCell:forRowAtIndexPath:"_sel)
        .willDisplayCell(self, cell, shown_path);
    cell.setHidden(NO);
    self.insertSubview(cell, background_view_ ? 1 : 0);
  }));
}

void TableView::put_away(RowPlace place, UITableViewCell cell) {
  cell.removeFromSuperview();
  pool_.keep(cell);
  if (const auto told = listener("tableView:didEndDisplayingCell:forRowAtIndexPath:"_sel))
    told.didEndDisplayingCell(self, cell, path(place));
}

void TableView::put_all_away() {
  const Cells before = std::move(cells_);
  cells_.clear();
  for (const auto& [where, cell] : before)
    put_away(where, cell.get());
  for (const auto* views : {&section_headers_, &section_footers_})
    for (const auto& [section, view] : *views)
      view->removeFromSuperview();
  section_headers_.clear();
  section_footers_.clear();
}

UIView TableView::title_view(NSString title, GroupEnd end, RowSpan span) const {
  if (!is_grouped()) return make_section_title(title).leak().autorelease();
  return make_group_title(title, end, rect_of(span).size).leak().autorelease();
}

UIView TableView::section_header(NSInteger section) {
  if (const auto found = section_headers_.find(section); found != section_headers_.end())
    return found->second.get();
  UIView view =
      listener("tableView:viewForHeaderInSection:"_sel).viewForHeaderInSection(self, section);
  if (!view) {
    const NSString title =
        source("tableView:titleForHeaderInSection:"_sel).titleForHeaderInSection(self, section);
    if (title) view = title_view(title, GroupEnd::Header, layout_.section_header(section));
  }
  if (!view) return nil;
  section_headers_.emplace(section, objc::Ref<UIView>::retain(view));
  self.addSubview(view);
  return view;
}

UIView TableView::section_footer(NSInteger section) {
  if (const auto found = section_footers_.find(section); found != section_footers_.end())
    return found->second.get();
  UIView view =
      listener("tableView:viewForFooterInSection:"_sel).viewForFooterInSection(self, section);
  if (!view) {
    const NSString title =
        source("tableView:titleForFooterInSection:"_sel).titleForFooterInSection(self, section);
    if (title) view = title_view(title, GroupEnd::Footer, layout_.section_footer(section));
  }
  if (!view) return nil;
  section_footers_.emplace(section, objc::Ref<UIView>::retain(view));
  self.addSubview(view);
  return view;
}

// In a plain table the header of the topmost section stays in sight until the next one pushes it
// out.
void TableView::place_section_headers() {
  const auto sections = layout_.sections_in(visible_span());
  const auto out_of_sight = [&](const auto& entry) {
    if (std::binary_search(sections.begin(), sections.end(), entry.first)) return false;
    entry.second->removeFromSuperview();
    return true;
  };
  std::erase_if(section_headers_, out_of_sight);
  std::erase_if(section_footers_, out_of_sight);
  const double top = visible_span().begin + self.contentInset().top;
  for (const NSInteger section : sections) {
    RowSpan header = layout_.section_header(section);
    if (header.length() > 0) {
      if (const UIView view = section_header(section)) {
        const double length = header.length();
        if (style_ == UITableViewStylePlain) {
          const double lowest = layout_.section_footer(section).begin - length;
          header.begin = std::max(header.begin, std::min(top, lowest));
        }
        view.setFrame(rect_of({header.begin, header.begin + length}));
      }
    }
    const RowSpan footer = layout_.section_footer(section);
    if (footer.length() <= 0) continue;
    if (const UIView view = section_footer(section)) view.setFrame(rect_of(footer));
  }
}

}  // namespace host::uikit
