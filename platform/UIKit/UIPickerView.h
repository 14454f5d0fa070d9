#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIView.h"

/// Wheels side by side; one row is selected on each.
struct UIPickerView : objc::Bound<UIPickerView, "UIPickerView", UIView> {
  UIPickerView initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", UIPickerView>(frame);
  }

  objc::Object dataSource() const { return call<"dataSource", objc::Object>(); }
  void setDataSource(objc::Object source) const { call<"setDataSource:">(source); }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }
  NSInteger numberOfComponents() const { return call<"numberOfComponents", NSInteger>(); }
  NSInteger numberOfRowsInComponent(NSInteger component) const {
    return call<"numberOfRowsInComponent:", NSInteger>(component);
  }
  void reloadAllComponents() const { call<"reloadAllComponents">(); }
  /// Does not notify the delegate, which hears only of selections by touch.
  void selectRow(NSInteger row, NSInteger component, BOOL animated) const {
    call<"selectRow:inComponent:animated:">(row, component, animated);
  }
  /// -1 if there is no row.
  NSInteger selectedRowInComponent(NSInteger component) const {
    return call<"selectedRowInComponent:", NSInteger>(component);
  }
};

struct UIPickerViewDataSource
    : objc::Bound<UIPickerViewDataSource, "UIPickerViewDataSource", NSObject> {
  NSInteger numberOfComponentsInPickerView(UIPickerView picker) const {
    return call<"numberOfComponentsInPickerView:", NSInteger>(picker);
  }
  NSInteger numberOfRowsInComponent(UIPickerView picker, NSInteger component) const {
    return call<"pickerView:numberOfRowsInComponent:", NSInteger>(picker, component);
  }
};

/// Every method is optional.
struct UIPickerViewDelegate : objc::Bound<UIPickerViewDelegate, "UIPickerViewDelegate", NSObject> {
  NSString titleForRow(UIPickerView picker, NSInteger row, NSInteger component) const {
    return call<"pickerView:titleForRow:forComponent:", NSString>(picker, row, component);
  }
  void didSelectRow(UIPickerView picker, NSInteger row, NSInteger component) const {
    call<"pickerView:didSelectRow:inComponent:">(picker, row, component);
  }
};
