#include "host/activator/page/listener_list_page.h"

#include "host/activator/event/strings.h"
#include "host/activator/service/service.h"
#include "platform/Activator/LAListenerSettingsViewController.h"

namespace host::activator {
namespace {

constexpr CGFloat kListenerRowHeight = 60;
constexpr CGFloat kListenerCaptionHeight = 48;

/// Pushes the page onto the navigation stack, if there is one, or presents it.
void open_page(UIViewController from, UIViewController page) {
  const objc::Object navigation = from.respondsToSelector("navigationController"_sel)
                                      ? objc::send<objc::Object>(from, "navigationController"_sel)
                                      : objc::Object();
  if (navigation) {
    objc::send<>(navigation, "pushViewController:animated:"_sel, page, BOOL{YES});
  } else {
    from.presentViewController(page, YES, nullptr);
  }
}

}  // namespace

LAListenerListViewController ListenerListPage::init() {
  const auto made = super<LAListenerListViewController>("init"_sel);
  made.setTitle("Gestures"_ns);
  return made;
}

void ListenerListPage::view_did_load() {
  super("viewDidLoad"_sel);
  make_view();
}

void ListenerListPage::view_will_appear(BOOL animated) {
  super("viewWillAppear:"_sel, animated);
  keep_top_free();
  // Another process may have changed the contents.
  show_again();
}

void ListenerListPage::show_again() {
  records_ = Service::shared().directory().read();
  table().setRowHeight(kListenerRowHeight);
  table().reloadData();
}

NSInteger ListenerListPage::rows(UITableView, NSInteger) {
  return static_cast<NSInteger>(records_.size());
}

UITableViewCell ListenerListPage::cell(UITableView table, NSIndexPath path) {
  UITableViewCell cell = table.dequeueReusableCellWithIdentifier("listener"_ns);
  if (!cell) {
    cell = UITableViewCell::alloc()
               .initWithStyle(UITableViewCellStyleSubtitle, "listener"_ns)
               .autorelease();
    cell.setAccessoryType(UITableViewCellAccessoryDisclosureIndicator);
    cell.setSeparatorInset({0, kMargin + kIconSide + kMargin, 0, 0});
    cell.detailTextLabel().setTextColor(caption_color());
  }
  const ListenerRecord& record = records_[static_cast<std::size_t>(path.row())];
  cell.textLabel().setText(to_ns(record.shown_title()));
  cell.detailTextLabel().setText(record.description.empty() ? NSString()
                                                            : to_ns(record.description));
  cell.imageView().setImage(row_icon(record.icon));
  return cell;
}

CGFloat ListenerListPage::header_height(UITableView, NSInteger) {
  return kListenerCaptionHeight;
}

UIView ListenerListPage::header(UITableView, NSInteger) {
  return make_caption("Actions"_ns, width(), kListenerCaptionHeight);
}

NSString ListenerListPage::note() const {
  return records_.empty() ? "No installed extension can be called by a gesture."_ns
                          : "Choose an action to give it gestures."_ns;
}

CGFloat ListenerListPage::footer_height(UITableView, NSInteger) {
  return note_height(note(), width());
}

UIView ListenerListPage::footer(UITableView, NSInteger) {
  return make_note(note(), width());
}

void ListenerListPage::selected(UITableView table, NSIndexPath path) {
  table.deselectRowAtIndexPath(path, YES);
  const ListenerRecord& record = records_[static_cast<std::size_t>(path.row())];
  const auto page = LAListenerSettingsViewController::alloc().init().autorelease();
  page.setListenerName(to_ns(record.name));
  page.setTitle(to_ns(record.shown_title()));
  open_page(self, page);
}

void export_listener_list_page() {
  using Page = ListenerListPage;
  objc::ClassBuilder("LAListenerListViewController", "UIViewController")
      .state<Page>()
      .method<&Page::init>("init")
      .method<&Page::view_did_load>("viewDidLoad")
      .method<&Page::view_will_appear>("viewWillAppear:")
      .method<&Page::close>("closePressed")
      .method<&Page::rows>("tableView:numberOfRowsInSection:")
      .method<&Page::cell>("tableView:cellForRowAtIndexPath:")
      .method<&Page::header_height>("tableView:heightForHeaderInSection:")
      .method<&Page::header>("tableView:viewForHeaderInSection:")
      .method<&Page::footer_height>("tableView:heightForFooterInSection:")
      .method<&Page::footer>("tableView:viewForFooterInSection:")
      .method<&Page::selected>("tableView:didSelectRowAtIndexPath:")
      .finish();
}

}  // namespace host::activator
