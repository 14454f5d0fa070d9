#include "host/uikit/scroll/table_view.h"

#include "host/uikit/scroll/table_view_cell.h"

namespace host::uikit {

UIView TableView::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  self.setAlwaysBounceVertical(YES);
  self.setBackgroundColor(UIColor::whiteColor());
  return self;
}

UITableView TableView::init_with_style(CGRect frame, UITableViewStyle style) {
  if (!self.initWithFrame(frame)) return nil;
  style_ = style;
  if (is_grouped()) self.setBackgroundColor(group_ground_color());
  return self;
}

UITableViewDataSource TableView::source(objc::Sel selector) const {
  const auto source = objc::cast<UITableViewDataSource>(data_source_);
  return source && source.respondsToSelector(selector) ? source : nil;
}

UITableViewDelegate TableView::listener(objc::Sel selector) const {
  const auto delegate = objc::cast<UITableViewDelegate>(self.delegate());
  return delegate && delegate.respondsToSelector(selector) ? delegate : nil;
}

void TableView::set_data_source(objc::Object source) {
  data_source_ = source;
  loaded_ = false;
  self.setNeedsLayout();
}

void TableView::set_delegate(objc::Object delegate) {
  super("setDelegate:"_sel, delegate);
  loaded_ = false;
  self.setNeedsLayout();
}

void TableView::reload_data() {
  put_all_away();
  selected_.reset();
  highlighted_.reset();
  load();
}

void TableView::reload_rows(NSArray paths, NSInteger) {
  for (const NSIndexPath reloaded : paths.of<NSIndexPath>()) {
    const auto where = place(reloaded);
    if (!where) continue;
    const auto shown = cells_.find(*where);
    if (shown == cells_.end()) continue;
    const auto cell = shown->second;
    cells_.erase(shown);
    put_away(*where, cell.get());
  }
  measure_again();
}

void TableView::did_move_to_window() {
  super("didMoveToWindow"_sel);
  self.setNeedsLayout();
}

void TableView::set_frame(CGRect frame) {
  const CGFloat width = self.bounds().size.width;
  super("setFrame:"_sel, frame);
  if (self.bounds().size.width != width) measure_again();
}

void TableView::set_bounds(CGRect bounds) {
  const CGFloat width = self.bounds().size.width;
  super("setBounds:"_sel, bounds);
  if (self.bounds().size.width != width) measure_again();
}

void TableView::set_row_height(CGFloat height) {
  row_height_ = height;
  measure_again();
}

void TableView::set_section_header_height(CGFloat height) {
  section_header_height_ = height;
  measure_again();
}

void TableView::set_section_footer_height(CGFloat height) {
  section_footer_height_ = height;
  measure_again();
}

void TableView::swap_view(objc::Ref<UIView>& kept, UIView view) {
  if (kept.get() == view) return;
  if (kept && kept->superview() == self) kept->removeFromSuperview();
  kept.reset(view);
}

void TableView::set_header_view(UIView view) {
  swap_view(header_view_, view);
  if (view) self.addSubview(view);
  arrange_again();
}

void TableView::set_footer_view(UIView view) {
  swap_view(footer_view_, view);
  if (view) self.addSubview(view);
  arrange_again();
}

void TableView::set_background_view(UIView view) {
  swap_view(background_view_, view);
  if (view) self.insertSubview(view, 0);
  self.setNeedsLayout();
}

void TableView::set_separator_style(UITableViewCellSeparatorStyle style) {
  separator_style_ = style;
  for (const auto& [where, cell] : cells_)
    objc::state_of<TableViewCell>(cell.get()).set_separator(separator_color(), style);
}

UIColor TableView::separator_color() const {
  if (separator_color_) return separator_color_.get();
  return UIColor::colorWithRed(200.0 / 255, 199.0 / 255, 204.0 / 255, 1);
}

void TableView::set_separator_color(UIColor color) {
  separator_color_.reset(color);
  set_separator_style(separator_style_);
}

void TableView::set_separator_inset(UIEdgeInsets inset) {
  separator_inset_ = inset;
  for (const auto& [where, cell] : cells_)
    cell->setNeedsLayout();
}

UITableViewCell TableView::dequeue(NSString identifier) {
  if (const UITableViewCell waiting = pool_.take(identifier)) {
    waiting.prepareForReuse();
    return waiting;
  }
  if (!identifier) return nil;
  const auto known = registered_.find(identifier.UTF8String());
  if (known == registered_.end()) return nil;
  const auto made = objc::send<UITableViewCell>(objc::Object(known->second), "alloc"_sel);
  return made.initWithStyle(UITableViewCellStyleDefault, identifier).autorelease();
}

UITableViewCell TableView::dequeue_for_path(NSString identifier, NSIndexPath) {
  return self.dequeueReusableCellWithIdentifier(identifier);
}

void TableView::register_class(objc::Class cls, NSString identifier) {
  if (!identifier) return;
  if (cls) {
    registered_[identifier.UTF8String()] = cls;
  } else {
    registered_.erase(identifier.UTF8String());
  }
}

}  // namespace host::uikit
