#include "host/uikit/navigation/navigation_bar.h"

#include "host/runtime/on_pixel.h"
#include "host/uikit/navigation_items/navigation_item.h"
#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/_UIBackdropView.h"

namespace host::uikit {
namespace {

constexpr CGFloat kBarLineAlpha = 0.3;
constexpr CGFloat kBarTintAlpha = 0.85;
constexpr CGFloat kUsualStatusBar = 20;

void watch(UINavigationItem item, std::function<void()> watcher) {
  if (item) objc::state_of<NavigationItem>(item).watch(std::move(watcher));
}

}  // namespace

CGFloat status_bar_height() {
  const UIApplication application = UIApplication::sharedApplication();
  return application ? application.statusBarHeight() : kUsualStatusBar;
}

NavigationBar::~NavigationBar() {
  watch(top_item(), {});
}

UIView NavigationBar::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  const auto glass = _UIBackdropView::alloc().initWithFrame(
      {}, NO, _UIBackdropViewSettingsUltraLight::settingsForStyle(0));
  ground_ = objc::Ref<UIView>::adopt(glass);
  tint_ground_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
  line_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
  line_->setBackgroundColor(UIColor::colorWithWhite(0, kBarLineAlpha));
  for (const UIView part : {ground_.get(), tint_ground_.get(), line_.get()}) {
    part.setUserInteractionEnabled(NO);
    self.addSubview(part);
  }
  return self;
}

void NavigationBar::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGRect bounds = self.bounds();
  const CGFloat above = CGRect(self.frame()).min_y();
  const CGRect ground{0, -above, bounds.size.width, bounds.size.height + above};
  ground_->setFrame(ground);
  tint_ground_->setFrame(ground);
  line_->setFrame({0, bounds.size.height, bounds.size.width, hairline()});
  // The contents are laid out for one width.
  if (bounds.size.width == laid_out_width_) return;
  laid_out_width_ = bounds.size.width;
  if (!leaving_) show_top();
}

NavigationBar::Items NavigationBar::listed(NSArray items) {
  Items list;
  if (!items) return list;
  for (const UINavigationItem item : items.of<UINavigationItem>())
    list.push_back(objc::Ref<UINavigationItem>::retain(item));
  return list;
}

NSArray NavigationBar::items() const {
  const auto items = NSMutableArray::array();
  for (const auto& item : items_)
    items.addObject(item.get());
  return items;
}

void NavigationBar::set_items(NSArray items) {
  watch(top_item(), {});
  leaving_.reset();
  items_ = listed(items);
  watch_top();
  show_top();
}

UINavigationItem NavigationBar::top_item() const {
  return items_.empty() ? UINavigationItem() : items_.back().get();
}

UINavigationItem NavigationBar::back_item() const {
  return items_.size() < 2 ? UINavigationItem() : items_[items_.size() - 2].get();
}

void NavigationBar::set_bar_tint(UIColor color) {
  bar_tint_.reset(color);
  tint_ground_->setBackgroundColor(color.colorWithAlphaComponent(kBarTintAlpha));
}

void NavigationBar::tint_color_did_change() {
  super<>("tintColorDidChange"_sel);
  if (!leaving_) show_top();
}

void NavigationBar::set_back_target(objc::Object target, objc::Sel action) {
  back_target_ = target;
  back_action_ = action;
}

void NavigationBar::watch_top() {
  watch(top_item(), [this] {
    if (!leaving_) show_top();
  });
}

std::unique_ptr<BarContents> NavigationBar::make_contents() const {
  if (items_.empty()) return nullptr;
  BarContents::Way way{nil, back_target_, back_action_};
  if (const UINavigationItem back = back_item())
    way.back_title = back.title() ? back.title() : ""_ns;
  return std::make_unique<BarContents>(self, top_item(), way);
}

// Recreates the contents: this is rare, and cheaper than keeping everything up to date.
void NavigationBar::show_top() {
  UIView::performWithoutAnimation(objc::block([this] {
    shown_.reset();
    shown_ = make_contents();
  }));
}

void NavigationBar::begin_change(NSArray items, Direction direction) {
  watch(top_item(), {});
  direction_ = direction;
  items_before_ = std::exchange(items_, listed(items));
  watch_top();
  UIView::performWithoutAnimation(objc::block([this] {
    leaving_ = std::move(shown_);
    shown_ = make_contents();
    show_change(0);
  }));
}

void NavigationBar::show_change(CGFloat progress) {
  const CGFloat side = direction_ == Direction::Forwards ? 1 : -1;
  if (leaving_) leaving_->place(-side * progress);
  if (shown_) shown_->place(side * (1 - progress));
}

void NavigationBar::finish_change() {
  leaving_.reset();
  items_before_.clear();
  show_top();
}

void NavigationBar::abandon_change() {
  watch(top_item(), {});
  items_ = std::exchange(items_before_, {});
  leaving_.reset();
  watch_top();
  show_top();
}

void export_navigation_bar() {
  using Bar = NavigationBar;
  objc::ClassBuilder("UINavigationBar", "UIView")
      .state<Bar>()
      .method<&Bar::init_with_frame>("initWithFrame:")
      .method<&Bar::items>("items")
      .method<&Bar::set_items>("setItems:")
      .method<&Bar::top_item>("topItem")
      .method<&Bar::back_item>("backItem")
      .method<&Bar::bar_tint>("barTintColor")
      .method<&Bar::set_bar_tint>("setBarTintColor:")
      .method<&Bar::tint_color_did_change>("tintColorDidChange")
      .method<&Bar::layout_subviews>("layoutSubviews")
      .finish();
}

}  // namespace host::uikit
