#pragma once

#include <vector>

#include "host/activator/page/table_page.h"
#include "host/activator/registry/listener_record.h"
#include "platform/Activator/LAListenerListViewController.h"

namespace host::activator {

/// Lists every registered listener, with its icon, title and description. A tap opens its page.
class ListenerListPage final : public TablePage<ListenerListPage, LAListenerListViewController> {
 public:
  using TablePage::TablePage;

  LAListenerListViewController init();
  void view_did_load();
  void view_will_appear(BOOL animated);
  void close() { self.dismissViewControllerAnimated(YES, nullptr); }

  NSInteger rows(UITableView table, NSInteger section);
  UITableViewCell cell(UITableView table, NSIndexPath path);
  CGFloat header_height(UITableView table, NSInteger section);
  UIView header(UITableView table, NSInteger section);
  CGFloat footer_height(UITableView table, NSInteger section);
  UIView footer(UITableView table, NSInteger section);
  void selected(UITableView table, NSIndexPath path);

 private:
  void show_again();
  NSString note() const;

  std::vector<ListenerRecord> records_;
};

void export_listener_list_page();

}  // namespace host::activator
