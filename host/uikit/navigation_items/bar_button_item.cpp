#include "host/uikit/navigation_items/bar_button_item.h"

#include "host/uikit/view/action.h"

namespace host::uikit {

UIBarButtonItem BarButtonItem::init_with_title(NSString title, UIBarButtonItemStyle style,
                                               objc::Object target, objc::Sel action) {
  if (!super<UIBarButtonItem>("init"_sel)) return nil;
  title_ = objc::Ref<NSString>::adopt(title.copy());
  style_ = style;
  target_ = target;
  action_ = action;
  return self;
}

UIBarButtonItem BarButtonItem::init_with_image(UIImage image, UIBarButtonItemStyle style,
                                               objc::Object target, objc::Sel action) {
  if (!self.initWithTitle(nil, style, target, action)) return nil;
  image_.reset(image);
  return self;
}

void BarButtonItem::changed() const {
  if (watcher_) watcher_();
}

void BarButtonItem::set_title(NSString title) {
  title_ = objc::Ref<NSString>::adopt(title.copy());
  changed();
}

void BarButtonItem::set_image(UIImage image) {
  image_.reset(image);
  changed();
}

void BarButtonItem::set_style(UIBarButtonItemStyle style) {
  style_ = style;
  changed();
}

void BarButtonItem::set_enabled(BOOL enabled) {
  enabled_ = enabled ? YES : NO;
  changed();
}

void BarButtonItem::set_tint_color(UIColor color) {
  tint_.reset(color);
  changed();
}

void BarButtonItem::press() {
  if (action_ && enabled_) send_action(action_, target_, self, nil);
}

void export_bar_button_item() {
  using Item = BarButtonItem;
  objc::ClassBuilder("UIBarButtonItem", "NSObject")
      .state<Item>()
      .method<&Item::init_with_title>("initWithTitle:style:target:action:")
      .method<&Item::init_with_image>("initWithImage:style:target:action:")
      .method<&Item::title>("title")
      .method<&Item::set_title>("setTitle:")
      .method<&Item::image>("image")
      .method<&Item::set_image>("setImage:")
      .method<&Item::style>("style")
      .method<&Item::set_style>("setStyle:")
      .method<&Item::target>("target")
      .method<&Item::set_target>("setTarget:")
      .method<&Item::action>("action")
      .method<&Item::set_action>("setAction:")
      .method<&Item::is_enabled>("isEnabled")
      .method<&Item::set_enabled>("setEnabled:")
      .method<&Item::tint_color>("tintColor")
      .method<&Item::set_tint_color>("setTintColor:")
      .method<&Item::press>("_press")
      .finish();
}

}  // namespace host::uikit
