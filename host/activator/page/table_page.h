#pragma once

#include "host/activator/page/page_bar.h"
#include "host/activator/page/page_look.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::activator {

/// The base of the pages: a table that fills the page, under a bar if the page is stand-alone, or
/// under the status bar if it is nested in a page without bars.
template <class Derived, class Self>
class TablePage : public objc::Implementation<Derived, Self> {
 public:
  using Base = objc::Implementation<Derived, Self>;
  using Base::Base;

  // A table does not retain its delegate, and others may retain the table.
  ~TablePage() {
    if (!table_) return;
    table_->setDataSource(nil);
    table_->setDelegate(nil);
  }

 protected:
  using Base::self;

  void make_view() {
    self.view().setBackgroundColor(ground_color());
    table_ = make_table(self.view().bounds(), self);
    self.view().addSubview(table_.get());
  }
  void keep_top_free() {
    if (bar_ || self.navigationController()) return;
    if (stands_alone(self)) add_bar();
    const CGFloat top = bar_ ? kPageBarHeight : kStatusBarHeight;
    const CGSize size = self.view().bounds().size;
    table_->setFrame({0, top, size.width, size.height - top});
  }
  bool has_table() const { return static_cast<bool>(table_); }
  UITableView table() const { return table_.get(); }
  CGFloat width() const { return self.view().bounds().size.width; }

 private:
  void add_bar() {
    bar_ =
        objc::Ref<UIView>::retain(make_page_bar(self, self.title(), "closePressed"_sel, width()));
    self.view().addSubview(bar_.get());
  }

  objc::Ref<UITableView> table_;
  objc::Ref<UIView> bar_;
};

}  // namespace host::activator
