#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UITableView.h"
#include "tests/host/uikit/scroll/scroll_test.h"

namespace host::test {

struct TestTableListener
    : objc::Bound<TestTableListener, "TestTableListener", UITableViewDelegate> {};

/// A table's data source and delegate, which counts the messages it gets.
class TableListener : public objc::Implementation<TableListener, TestTableListener> {
 public:
  explicit TableListener(TestTableListener owner) : Implementation(owner) {}

  std::vector<NSInteger> rows{100};
  CGFloat (*height)(NSInteger row) = nullptr;
  bool has_titles = false;
  bool refuses_selection = false;
  int cells_made = 0;
  int heights_asked = 0;

  BOOL responds_to_selector(objc::Sel selector) {
    if (selector == "tableView:heightForRowAtIndexPath:"_sel) return height ? YES : NO;
    if (selector == "tableView:titleForHeaderInSection:"_sel) return has_titles ? YES : NO;
    return super<BOOL>("respondsToSelector:"_sel, selector);
  }
  NSInteger number_of_sections(UITableView) { return static_cast<NSInteger>(rows.size()); }
  NSInteger number_of_rows(UITableView, NSInteger section) {
    return rows[static_cast<std::size_t>(section)];
  }
  CGFloat height_for_row(UITableView, NSIndexPath path) {
    ++heights_asked;
    return height(path.row());
  }
  NSString title(UITableView, NSInteger) { return "Title"_ns; }
  UITableViewCell cell(UITableView table, NSIndexPath path) {
    UITableViewCell cell = table.dequeueReusableCellWithIdentifier("Cell"_ns);
    if (!cell) {
      ++cells_made;
      cell = UITableViewCell::alloc().initWithFrame({0, 0, 100, 400}, "Cell"_ns).autorelease();
    }
    cell.setTag(path.row());
    return cell;
  }
  NSIndexPath will_select(UITableView, NSIndexPath path) {
    note("willSelect", path);
    return refuses_selection ? NSIndexPath() : path;
  }
  void did_select(UITableView, NSIndexPath path) { note("didSelect", path); }
  NSIndexPath will_deselect(UITableView, NSIndexPath path) {
    note("willDeselect", path);
    return path;
  }
  void did_deselect(UITableView, NSIndexPath path) { note("didDeselect", path); }

  static void make_class() {
    if (TestTableListener::cls()) return;
    objc::ClassBuilder("TestTableListener", "NSObject")
        .state<TableListener>()
        .method<&TableListener::responds_to_selector>("respondsToSelector:")
        .method<&TableListener::number_of_sections>("numberOfSectionsInTableView:")
        .method<&TableListener::number_of_rows>("tableView:numberOfRowsInSection:")
        .method<&TableListener::height_for_row>("tableView:heightForRowAtIndexPath:")
        .method<&TableListener::title>("tableView:titleForHeaderInSection:")
        .method<&TableListener::cell>("tableView:cellForRowAtIndexPath:")
        .method<&TableListener::will_select>("tableView:willSelectRowAtIndexPath:")
        .method<&TableListener::did_select>("tableView:didSelectRowAtIndexPath:")
        .method<&TableListener::will_deselect>("tableView:willDeselectRowAtIndexPath:")
        .method<&TableListener::did_deselect>("tableView:didDeselectRowAtIndexPath:")
        .finish();
  }

 private:
  void note(const char* what, NSIndexPath path) {
    ScrollTest::events().push_back(std::string(what) + " " + std::to_string(path.row()));
  }
};

/// A screen filled by one table of 100 rows, 44 points tall.
class TableTest : public ScrollTest {
 public:
  TableTest() {
    TableListener::make_class();
    listener = TestTableListener::alloc().init();
    table = UITableView::alloc().initWithFrame(kScreen, UITableViewStylePlain);
    table.setDataSource(listener);
    table.setDelegate(listener);
    window.addSubview(table);
    advance(0.1);
  }
  ~TableTest() override {
    table.setDelegate(nil);
    table.setDataSource(nil);
    table.removeFromSuperview();
    table.release();
    advance(0);
    listener.release();
  }

  TableListener& source() { return objc::state_of<TableListener>(listener); }
  static NSIndexPath row(NSInteger row) { return NSIndexPath::indexPathForRow(row, 0); }
  void tap(CGPoint point) {
    press(point);
    advance(0.05);
    lift(point);
    advance(0.05);
  }

 protected:
  TestTableListener listener;
  UITableView table;
};

}  // namespace host::test
