#pragma once

#include "host/uikit/control/slider.h"
#include "objc/class_builder.h"
#include "platform/Preferences/PSControlTableCell.h"
#include "platform/UIKit/UITextField.h"

namespace host::preferences {

struct PSSliderTableCell : objc::Bound<PSSliderTableCell, "PSSliderTableCell", PSControlTableCell> {
};

/// A row that is a slider from `min` to `max`. The value is set when the finger is lifted, and also
/// while it moves if `isContinuous` says so.
class SliderCell : public objc::Implementation<SliderCell, PSSliderTableCell> {
 public:
  using Implementation::Implementation;

  UIControl new_control();
  objc::Object control_value();
  void refresh(PSSpecifier specifier);
  void layout_subviews();
};

struct PSEditableTableCell
    : objc::Bound<PSEditableTableCell, "PSEditableTableCell", PSControlTableCell> {
  UITextField field() const { return objc::cast<UITextField>(control()); }
};

/// A row with a text field. The value is set when editing ends.
class EditableCell : public objc::Implementation<EditableCell, PSEditableTableCell> {
 public:
  using Implementation::Implementation;
  ~EditableCell();

  UIControl new_control();
  objc::Object control_value();
  void refresh(PSSpecifier specifier);
  void layout_subviews();
  void did_end_editing(UITextField field);
  BOOL should_return(UITextField field);
};

void export_value_cells();

}  // namespace host::preferences
