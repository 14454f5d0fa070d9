#pragma once

#include <functional>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIBarButtonItem.h"

namespace host::uikit {

class BarButtonItem : public objc::Implementation<BarButtonItem, UIBarButtonItem> {
 public:
  explicit BarButtonItem(UIBarButtonItem owner) : Implementation(owner) {}

  UIBarButtonItem init_with_title(NSString title, UIBarButtonItemStyle style, objc::Object target,
                                  objc::Sel action);
  UIBarButtonItem init_with_image(UIImage image, UIBarButtonItemStyle style, objc::Object target,
                                  objc::Sel action);
  NSString title() const { return title_.get(); }
  void set_title(NSString title);
  UIImage image() const { return image_.get(); }
  void set_image(UIImage image);
  UIBarButtonItemStyle style() const { return style_; }
  void set_style(UIBarButtonItemStyle style);
  objc::Object target() const { return target_; }
  void set_target(objc::Object target) { target_ = target; }
  objc::Sel action() const { return action_; }
  void set_action(objc::Sel action) { action_ = action; }
  BOOL is_enabled() const { return enabled_; }
  void set_enabled(BOOL enabled);
  UIColor tint_color() const { return tint_.get(); }
  void set_tint_color(UIColor color);

  /// Sets the function called after every change of the item's looks, replacing the previous one.
  void watch(std::function<void()> watcher) { watcher_ = std::move(watcher); }
  /// Sends the action, as the item's button does when tapped.
  void press();

 private:
  void changed() const;

  objc::Ref<NSString> title_;
  objc::Ref<UIImage> image_;
  objc::Ref<UIColor> tint_;
  // Not retained, as on the platform.
  objc::Object target_;
  objc::Sel action_ = nullptr;
  UIBarButtonItemStyle style_ = UIBarButtonItemStylePlain;
  BOOL enabled_ = YES;
  std::function<void()> watcher_;
};

void export_bar_button_item();

}  // namespace host::uikit
