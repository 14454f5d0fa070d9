#pragma once

#include "host/activator/page/page_bar.h"
#include "host/activator/page/page_look.h"
#include "objc/class_builder.h"

namespace host::activator {

/// What the pages share: a table that fills the page, under a bar where the page has none.
template <class Derived, class Self>
class TablePage : public objc::Implementation<Derived, Self> {
 public:
  using Base = objc::Implementation<Derived, Self>;
  using Base::Base;

  // A table does not keep its delegate, and others may keep the table.
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
  void add_bar_where_missing() {
    if (!stands_alone(self) || bar_) return;
    const CGRect bounds = self.view().bounds();
    bar_ = objc::Ref<UIView>::retain(
        make_page_bar(self, self.title(), "closePressed"_sel, bounds.size.width));
    self.view().addSubview(bar_.get());
    table_->setFrame({0, kPageBarHeight, bounds.size.width, bounds.size.height - kPageBarHeight});
  }
  bool has_table() const { return static_cast<bool>(table_); }
  UITableView table() const { return table_.get(); }
  CGFloat width() const { return self.view().bounds().size.width; }

 private:
  objc::Ref<UITableView> table_;
  objc::Ref<UIView> bar_;
};

}  // namespace host::activator
