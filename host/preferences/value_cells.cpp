#include "host/preferences/value_cells.h"

#include "host/preferences/specifier.h"
#include "platform/Foundation/NSValue.h"

namespace host::preferences {
namespace {

constexpr CGFloat kRowMargin = 15;
constexpr CGFloat kLabelGap = 12;

/// The number in a value or a property; `otherwise` if it is not a number.
float number_of(objc::Object value, float otherwise) {
  const auto object = objc::cast<NSObject>(value);
  if (!object || !object.respondsToSelector("floatValue"_sel)) return otherwise;
  return objc::send<float>(object, "floatValue"_sel);
}

bool is_text(objc::Object value) {
  return value && objc::cast<NSObject>(value).isKindOfClass(NSString::cls());
}

}  // namespace

UIControl SliderCell::new_control() {
  return objc::send<UISlider>(UISlider::alloc(), "initWithFrame:"_sel, CGRect{});
}

objc::Object SliderCell::control_value() {
  return NSNumber::numberWithFloat(objc::cast<UISlider>(self.control()).value());
}

void SliderCell::refresh(PSSpecifier specifier) {
  super<>("refreshCellContentsWithSpecifier:"_sel, specifier);
  const auto slider = objc::cast<UISlider>(self.control());
  if (!specifier || !slider) return;
  self.textLabel().setText(nil);
  const float minimum = number_of(specifier.propertyForKey("min"_ns), 0);
  slider.setMinimumValue(minimum);
  slider.setMaximumValue(number_of(specifier.propertyForKey("max"_ns), 1));
  slider.setContinuous(number_of(specifier.propertyForKey("isContinuous"_ns), 0) != 0);
  if (!slider.isTracking()) slider.setValue(number_of(state_of(specifier).value(), minimum));
}

void SliderCell::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGSize size = self.bounds().size;
  self.control().setFrame({kRowMargin, 0, size.width - 2 * kRowMargin, size.height});
}

EditableCell::~EditableCell() {
  if (self.field()) self.field().setDelegate(nil);
}

UIControl EditableCell::new_control() {
  const auto field = UITextField::alloc().initWithFrame({});
  field.setDelegate(self);
  field.setClearButtonMode(UITextFieldViewModeWhileEditing);
  return field;
}

objc::Object EditableCell::control_value() {
  return self.field().text();
}

void EditableCell::refresh(PSSpecifier specifier) {
  super<>("refreshCellContentsWithSpecifier:"_sel, specifier);
  if (!specifier || !self.field()) return;
  const objc::Object value = state_of(specifier).value();
  const objc::Object placeholder = specifier.propertyForKey("placeholder"_ns);
  self.field().setPlaceholder(is_text(placeholder) ? objc::cast<NSString>(placeholder)
                                                   : NSString());
  if (self.field().isEditing()) return;
  const NSString text =
      is_text(value) ? objc::cast<NSString>(value) : objc::cast<NSObject>(value).description();
  self.field().setText(text);
}

void EditableCell::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGSize size = self.bounds().size;
  CGFloat left = kRowMargin;
  if (self.textLabel().text().length() > 0) {
    const CGRect label = self.textLabel().frame();
    const CGFloat width = objc::send<CGSize>(self.textLabel(), "sizeThatFits:"_sel, size).width;
    self.textLabel().setFrame({label.origin.x, label.origin.y, width, label.size.height});
    left = label.origin.x + width + kLabelGap;
  }
  self.control().setFrame({left, 0, size.width - left - kRowMargin, size.height});
}

void EditableCell::did_end_editing(UITextField field) {
  objc::send<>(self, "controlChanged:"_sel, field);
}

BOOL EditableCell::should_return(UITextField field) {
  field.resignFirstResponder();
  return YES;
}

void export_value_cells() {
  objc::ClassBuilder("PSSliderTableCell", "PSControlTableCell")
      .state<SliderCell>()
      .method<&SliderCell::new_control>("newControl")
      .method<&SliderCell::control_value>("controlValue")
      .method<&SliderCell::refresh>("refreshCellContentsWithSpecifier:")
      .method<&SliderCell::layout_subviews>("layoutSubviews")
      .finish();
  objc::ClassBuilder("PSEditableTableCell", "PSControlTableCell")
      .state<EditableCell>()
      .method<&EditableCell::new_control>("newControl")
      .method<&EditableCell::control_value>("controlValue")
      .method<&EditableCell::refresh>("refreshCellContentsWithSpecifier:")
      .method<&EditableCell::layout_subviews>("layoutSubviews")
      .method<&EditableCell::did_end_editing>("textFieldDidEndEditing:")
      .method<&EditableCell::should_return>("textFieldShouldReturn:")
      .finish();
}

}  // namespace host::preferences
