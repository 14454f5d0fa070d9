#include "host/uikit/navigation_items/navigation_item.h"

#include "host/uikit/navigation_items/bar_button_item.h"

namespace host::uikit {
namespace {

void stop_watching(UIBarButtonItem item) {
  if (item) objc::state_of<BarButtonItem>(item).watch({});
}

}  // namespace

NavigationItem::~NavigationItem() {
  stop_watching(left_.get());
  stop_watching(right_.get());
}

UINavigationItem NavigationItem::init_with_title(NSString title) {
  if (!super<UINavigationItem>("init"_sel)) return nil;
  title_ = objc::Ref<NSString>::adopt(title.copy());
  return self;
}

void NavigationItem::changed() const {
  if (watcher_) watcher_();
}

void NavigationItem::set_title(NSString title) {
  title_ = objc::Ref<NSString>::adopt(title.copy());
  changed();
}

void NavigationItem::set_title_view(UIView view) {
  title_view_.reset(view);
  changed();
}

void NavigationItem::swap(objc::Ref<UIBarButtonItem>& kept, UIBarButtonItem item) {
  if (kept.get() == item) return;
  stop_watching(kept.get());
  kept.reset(item);
  if (item) objc::state_of<BarButtonItem>(item).watch([this] { changed(); });
  changed();
}

void NavigationItem::set_left(UIBarButtonItem item) {
  swap(left_, item);
}

void NavigationItem::set_right(UIBarButtonItem item) {
  swap(right_, item);
}

void NavigationItem::set_hides_back_button(BOOL hides) {
  hides_back_button_ = hides ? YES : NO;
  changed();
}

void export_navigation_item() {
  using Item = NavigationItem;
  objc::ClassBuilder("UINavigationItem", "NSObject")
      .state<Item>()
      .method<&Item::init_with_title>("initWithTitle:")
      .method<&Item::title>("title")
      .method<&Item::set_title>("setTitle:")
      .method<&Item::title_view>("titleView")
      .method<&Item::set_title_view>("setTitleView:")
      .method<&Item::left>("leftBarButtonItem")
      .method<&Item::set_left>("setLeftBarButtonItem:")
      .method<&Item::right>("rightBarButtonItem")
      .method<&Item::set_right>("setRightBarButtonItem:")
      .method<&Item::set_right_animated>("setRightBarButtonItem:animated:")
      .method<&Item::hides_back_button>("hidesBackButton")
      .method<&Item::set_hides_back_button>("setHidesBackButton:")
      .finish();
}

}  // namespace host::uikit
