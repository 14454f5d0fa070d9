#include "host/uikit/scroll/table_view.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

NSIndexPath TableView::path_for_selected_row() {
  return selected_ ? path(*selected_) : NSIndexPath();
}

void TableView::set_selected(std::optional<RowPlace> place, BOOL animated) {
  if (selected_ == place) return;
  if (selected_) shown_cell(*selected_).setSelected(NO, animated);
  selected_ = place;
  if (selected_) shown_cell(*selected_).setSelected(YES, animated);
}

// Requested by the program rather than a finger, so the delegate is not told.
void TableView::select_row(NSIndexPath path, BOOL animated, UITableViewScrollPosition position) {
  load_if_needed();
  if (!path) {
    set_selected(std::nullopt, animated);
    return;
  }
  const auto where = place(path);
  if (!where) return;
  set_selected(where, animated);
  if (position != UITableViewScrollPositionNone)
    self.scrollToRowAtIndexPath(path, position, animated);
}

void TableView::deselect_row(NSIndexPath path, BOOL animated) {
  const auto where = place(path);
  if (where && selected_ == where) set_selected(std::nullopt, animated);
}

void TableView::highlight(std::optional<RowPlace> place) {
  if (highlighted_ == place) return;
  if (highlighted_) shown_cell(*highlighted_).setHighlighted(NO, NO);
  highlighted_ = place;
  if (highlighted_) shown_cell(*highlighted_).setHighlighted(YES, NO);
}

void TableView::touches_began(NSSet touches, UIEvent event) {
  super("touchesBegan:withEvent:"_sel, touches, event);
  if (!allows_selection_) return;
  load_if_needed();
  const CGPoint point = objc::cast<UITouch>(touches.anyObject()).locationInView(self);
  const auto touched = layout_.row_at(point.y);
  if (!touched) return;
  if (const auto asked = listener("tableView:shouldHighlightRowAtIndexPath:"_sel))
    if (!asked.shouldHighlightRowAtIndexPath(self, path(*touched))) return;
  highlight(touched);
}

void TableView::touches_ended(NSSet touches, UIEvent event) {
  super("touchesEnded:withEvent:"_sel, touches, event);
  const auto touched = highlighted_;
  if (!touched) return;
  const CGPoint point = objc::cast<UITouch>(touches.anyObject()).locationInView(self);
  if (layout_.row_at(point.y) == touched) choose(*touched);
  highlight(std::nullopt);
}

void TableView::touches_cancelled(NSSet touches, UIEvent event) {
  super("touchesCancelled:withEvent:"_sel, touches, event);
  highlight(std::nullopt);
}

void TableView::choose(RowPlace touched) {
  NSIndexPath chosen = path(touched);
  if (const auto asked = listener("tableView:willSelectRowAtIndexPath:"_sel))
    chosen = asked.willSelectRowAtIndexPath(self, chosen);
  // The delegate may have refused, chosen another row, or reloaded the table meanwhile.
  const auto where = place(chosen);
  if (!where) return;
  if (selected_ && selected_ != where) {
    NSIndexPath left = path(*selected_);
    if (const auto asked = listener("tableView:willDeselectRowAtIndexPath:"_sel))
      left = asked.willDeselectRowAtIndexPath(self, left);
    if (left) {
      set_selected(std::nullopt, NO);
      listener("tableView:didDeselectRowAtIndexPath:"_sel).didDeselectRowAtIndexPath(self, left);
    }
  }
  set_selected(where, NO);
  listener("tableView:didSelectRowAtIndexPath:"_sel).didSelectRowAtIndexPath(self, chosen);
}

}  // namespace host::uikit
