#include "host/activator/page/listener_page.h"

#include "host/activator/event/event_kinds.h"
#include "host/activator/event/strings.h"
#include "host/activator/page/listener_heading.h"
#include "host/activator/service/service.h"

namespace host::activator {
namespace {

constexpr CGFloat kEventCaptionHeight = 38;
constexpr CGFloat kEventRowHeight = 44;

std::string event_of(NSIndexPath path) {
  return event_kinds()[static_cast<std::size_t>(path.row())].name;
}

}  // namespace

void ListenerPage::set_listener_name(NSString name) {
  name_ = objc::Ref<NSString>::adopt(name.copy());
  if (has_table()) show_again();
}

void ListenerPage::view_did_load() {
  super("viewDidLoad"_sel);
  make_view();
}

void ListenerPage::view_will_appear(BOOL animated) {
  super("viewWillAppear:"_sel, animated);
  keep_top_free();
  // Another process may have changed the contents.
  show_again();
}

void ListenerPage::show_again() {
  record_ = Service::shared().directory().find(to_string(name_.get()));
  modes_.clear();
  for (const ModeKind& kind : mode_kinds()) {
    if (record_.admits(kind.name)) modes_.push_back(kind);
  }
  table().setRowHeight(kEventRowHeight);
  table().setTableHeaderView(make_listener_heading(record_, width()));
  table().reloadData();
}

bool ListenerPage::is_assigned(NSIndexPath path) const {
  const Assignments& all = Service::shared().assignments().current();
  return all.contains(event_of(path), modes_[static_cast<std::size_t>(path.section())].name,
                      record_.name);
}

void ListenerPage::toggle(NSIndexPath path) const {
  Service& service = Service::shared();
  const char* mode = modes_[static_cast<std::size_t>(path.section())].name;
  if (is_assigned(path)) {
    service.assignments().unassign(event_of(path), mode, record_.name);
  } else {
    service.assign(event_of(path), mode, record_.name);
  }
}

NSInteger ListenerPage::sections(UITableView) {
  return static_cast<NSInteger>(modes_.size());
}

NSInteger ListenerPage::rows(UITableView, NSInteger) {
  return static_cast<NSInteger>(event_kinds().size());
}

UITableViewCell ListenerPage::cell(UITableView table, NSIndexPath path) {
  UITableViewCell cell = table.dequeueReusableCellWithIdentifier("event"_ns);
  if (!cell)
    cell = UITableViewCell::alloc()
               .initWithStyle(UITableViewCellStyleDefault, "event"_ns)
               .autorelease();
  cell.textLabel().setText(to_ns(event_kinds()[static_cast<std::size_t>(path.row())].title));
  cell.setAccessoryType(is_assigned(path) ? UITableViewCellAccessoryCheckmark
                                          : UITableViewCellAccessoryNone);
  return cell;
}

CGFloat ListenerPage::header_height(UITableView, NSInteger) {
  return kEventCaptionHeight;
}

UIView ListenerPage::header(UITableView, NSInteger section) {
  const ModeKind& kind = modes_[static_cast<std::size_t>(section)];
  return make_caption(to_ns(kind.title), width(), kEventCaptionHeight);
}

void ListenerPage::selected(UITableView table, NSIndexPath path) {
  table.deselectRowAtIndexPath(path, YES);
  toggle(path);
  // Shows the file's current contents, whether or not the change succeeded.
  table.cellForRowAtIndexPath(path).setAccessoryType(
      is_assigned(path) ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone);
}

void export_listener_page() {
  using Page = ListenerPage;
  objc::ClassBuilder("LAListenerSettingsViewController", "UIViewController")
      .state<Page>()
      .method<&Page::view_did_load>("viewDidLoad")
      .method<&Page::view_will_appear>("viewWillAppear:")
      .method<&Page::close>("closePressed")
      .method<&Page::listener_name>("listenerName")
      .method<&Page::set_listener_name>("setListenerName:")
      .method<&Page::sections>("numberOfSectionsInTableView:")
      .method<&Page::rows>("tableView:numberOfRowsInSection:")
      .method<&Page::cell>("tableView:cellForRowAtIndexPath:")
      .method<&Page::header_height>("tableView:heightForHeaderInSection:")
      .method<&Page::header>("tableView:viewForHeaderInSection:")
      .method<&Page::selected>("tableView:didSelectRowAtIndexPath:")
      .finish();
}

}  // namespace host::activator
