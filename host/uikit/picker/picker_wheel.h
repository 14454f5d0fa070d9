#pragma once

#include <functional>
#include <map>

#include "host/uikit/picker/wheel_geometry.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::uikit {

struct UIPickerWheel : objc::Bound<UIPickerWheel, "UIPickerWheel", UIScrollView> {};

/// One wheel of a picker: rows on a rim, of which the middle one is chosen. A finger turns the
/// wheel, and it comes to rest on a row; a tap on a row brings that row to the middle.
class PickerWheel : public objc::Implementation<PickerWheel, UIPickerWheel> {
 public:
  explicit PickerWheel(UIPickerWheel owner) : Implementation(owner) {}
  ~PickerWheel();

  struct Rows {
    NSInteger count = 0;
    std::function<NSString(NSInteger)> title;
  };
  /// `on_choice` is called with the row that a finger has chosen, once the wheel rests.
  static objc::Ref<UIPickerWheel> make(std::function<void(NSInteger)> on_choice);

  void load(Rows rows);
  void forget_picker();
  NSInteger count() const { return rows_.count; }
  /// -1 when there are no rows.
  NSInteger chosen() const { return rows_.count > 0 ? chosen_ : -1; }
  void choose(NSInteger row, bool animated);

  UIView init_with_frame(CGRect frame);
  void set_frame(CGRect frame);
  void layout_subviews();
  void will_end_dragging(UIScrollView view, CGPoint velocity, CGPoint* target);
  void did_end_dragging(UIScrollView view, BOOL decelerates);
  void did_end_decelerating(UIScrollView view);
  void did_end_animation(UIScrollView view);
  void tapped(UITapGestureRecognizer tap);

 private:
  NSInteger row_near(CGFloat offset) const;
  CGFloat offset_of(NSInteger row) const;
  WheelGeometry geometry() const;
  void settle();
  UILabel label_of(NSInteger row);
  void place(UILabel label, double distance) const;

  Rows rows_;
  std::function<void(NSInteger)> on_choice_;
  std::map<NSInteger, objc::Ref<UILabel>> labels_;
  NSInteger chosen_ = 0;
};

inline constexpr CGFloat kPickerRow = 32;

void export_picker_wheel();

}  // namespace host::uikit
