#pragma once

#include <string>
#include <vector>

#include "host/activator/event/mode.h"
#include "host/activator/page/table_page.h"
#include "host/activator/registry/listener_record.h"
#include "platform/Activator/LAListenerSettingsViewController.h"

namespace host::activator {

/// The gestures of one listener: a section for each of its modes, a row for each event, and a check
/// mark at its assigned events. An unknown listener is shown by its name and can still be assigned
/// events: it may be registered later.
class ListenerPage final : public TablePage<ListenerPage, LAListenerSettingsViewController> {
 public:
  using TablePage::TablePage;

  NSString listener_name() const { return name_.get(); }
  void set_listener_name(NSString name);

  void view_did_load();
  void view_will_appear(BOOL animated);
  void close() { self.dismissViewControllerAnimated(YES, nullptr); }

  NSInteger sections(UITableView table);
  NSInteger rows(UITableView table, NSInteger section);
  UITableViewCell cell(UITableView table, NSIndexPath path);
  CGFloat header_height(UITableView table, NSInteger section);
  UIView header(UITableView table, NSInteger section);
  void selected(UITableView table, NSIndexPath path);

 private:
  void show_again();
  bool is_assigned(NSIndexPath path) const;
  void toggle(NSIndexPath path) const;

  objc::Ref<NSString> name_;
  ListenerRecord record_;
  std::vector<ModeKind> modes_;
};

void export_listener_page();

}  // namespace host::activator
