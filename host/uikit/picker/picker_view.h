#pragma once

#include <vector>

#include "host/uikit/picker/picker_wheel.h"
#include "platform/UIKit/UIPickerView.h"

namespace host::uikit {

/// Wheels side by side; the chosen rows are between two lines in the middle. The height is always
/// one of the platform's, whatever frame is set.
class PickerView : public objc::Implementation<PickerView, UIPickerView> {
 public:
  explicit PickerView(UIPickerView owner) : Implementation(owner) {}
  ~PickerView();

  UIView init_with_frame(CGRect frame);
  void set_frame(CGRect frame);
  CGSize size_that_fits(CGSize size);
  void layout_subviews();

  objc::Object data_source() const { return data_source_; }
  void set_data_source(objc::Object source);
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate);
  NSInteger number_of_components();
  NSInteger number_of_rows(NSInteger component);
  void reload();
  void select(NSInteger row, NSInteger component, BOOL animated);
  NSInteger selected(NSInteger component);

 private:
  void load_if_needed();
  PickerWheel* wheel(NSInteger component);
  NSString title(NSInteger row, NSInteger component) const;
  void chosen(NSInteger row, NSInteger component) const;

  std::vector<objc::Ref<UIPickerWheel>> wheels_;
  objc::Ref<UIView> upper_line_;
  objc::Ref<UIView> lower_line_;
  // Not retained, as on the platform.
  objc::Object data_source_;
  objc::Object delegate_;
  bool loaded_ = false;
};

void export_picker_view();

}  // namespace host::uikit
