#pragma once

#include <memory>
#include <vector>

#include "host/uikit/navigation/bar_contents.h"
#include "objc/class_builder.h"

namespace host::uikit {

/// The bar over a stack of pages. It extends behind the status bar, is translucent, and ends in a
/// hairline.
class NavigationBar : public objc::Implementation<NavigationBar, UINavigationBar> {
 public:
  explicit NavigationBar(UINavigationBar owner) : Implementation(owner) {}
  ~NavigationBar();

  UIView init_with_frame(CGRect frame);
  NSArray items() const;
  void set_items(NSArray items);
  UINavigationItem top_item() const;
  UINavigationItem back_item() const;
  UIColor bar_tint() const { return bar_tint_.get(); }
  void set_bar_tint(UIColor color);
  void tint_color_did_change();
  void layout_subviews();

  /// Sets the object that is told of taps on the back button.
  void set_back_target(objc::Object target, objc::Sel action);

  enum class Direction { Forwards, Backwards };
  /// Begins to replace the current items with those of another page.
  void begin_change(NSArray items, Direction direction);
  /// Shows the change at `progress`, from 0, where it began, to 1.
  void show_change(CGFloat progress);
  void finish_change();
  /// Returns to where the change began.
  void abandon_change();

 private:
  using Items = std::vector<objc::Ref<UINavigationItem>>;

  static Items listed(NSArray items);
  void watch_top();
  void show_top();
  std::unique_ptr<BarContents> make_contents() const;

  Items items_;
  Items items_before_;
  std::unique_ptr<BarContents> shown_;
  std::unique_ptr<BarContents> leaving_;
  Direction direction_ = Direction::Forwards;
  objc::Ref<UIView> ground_;
  objc::Ref<UIView> tint_ground_;
  objc::Ref<UIView> line_;
  objc::Ref<UIColor> bar_tint_;
  CGFloat laid_out_width_ = 0;
  objc::Object back_target_;
  objc::Sel back_action_ = nullptr;
};

/// Returns the height of the status bar at the top of the screen, in points.
CGFloat status_bar_height();

inline constexpr CGFloat kNavigationBarHeight = 44;

void export_navigation_bar();

}  // namespace host::uikit
