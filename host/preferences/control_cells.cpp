#include "host/preferences/control_cells.h"

#include "host/preferences/specifier.h"
#include "platform/Foundation/NSValue.h"

namespace host::preferences {

ControlCell::~ControlCell() {
  detach_control();
}

PSTableCell ControlCell::init(UITableViewCellStyle style, NSString reuse_identifier,
                              PSSpecifier specifier) {
  const objc::Sel selector = "initWithStyle:reuseIdentifier:specifier:"_sel;
  if (!super<PSTableCell>(selector, style, reuse_identifier, specifier)) return nil;
  const auto control = objc::Ref<UIControl>::adopt(self.newControl());
  self.setControl(control.get());
  self.refreshCellContentsWithSpecifier(specifier);
  return self;
}

void ControlCell::detach_control() {
  if (control_) control_->removeTarget(self, "controlChanged:"_sel, UIControlEventValueChanged);
}

void ControlCell::set_control(UIControl control) {
  detach_control();
  control_.reset(control);
  self.setAccessoryView(control);
  control.addTarget(self, "controlChanged:"_sel, UIControlEventValueChanged);
}

void ControlCell::control_changed(UIControl) {
  if (self.specifier()) state_of(self.specifier()).set_value(self.controlValue());
}

UIControl SwitchCell::new_control() {
  return UISwitch::alloc().initWithFrame({});
}

objc::Object SwitchCell::control_value() {
  return NSNumber::numberWithBool(self.switch_control().isOn());
}

// A value that has never been set counts as off.
void SwitchCell::refresh(PSSpecifier specifier) {
  super<>("refreshCellContentsWithSpecifier:"_sel, specifier);
  if (!specifier || !self.control()) return;
  const auto value = objc::cast<NSObject>(state_of(specifier).value());
  const bool is_known = value.respondsToSelector("boolValue"_sel);
  const BOOL on = is_known ? objc::send<BOOL>(value, "boolValue"_sel) : NO;
  if (self.switch_control().isOn() != on) self.switch_control().setOn(on, self.window() ? YES : NO);
}

void export_control_cells() {
  objc::ClassBuilder("PSControlTableCell", "PSTableCell")
      .state<ControlCell>()
      .method<&ControlCell::init>("initWithStyle:reuseIdentifier:specifier:")
      .method<&ControlCell::control>("control")
      .method<&ControlCell::set_control>("setControl:")
      .method<&ControlCell::new_control>("newControl")
      .method<&ControlCell::control_value>("controlValue")
      .method<&ControlCell::control_changed>("controlChanged:")
      .finish();
  objc::ClassBuilder("PSSwitchTableCell", "PSControlTableCell")
      .state<SwitchCell>()
      .method<&SwitchCell::new_control>("newControl")
      .method<&SwitchCell::control_value>("controlValue")
      .method<&SwitchCell::refresh>("refreshCellContentsWithSpecifier:")
      .finish();
}

}  // namespace host::preferences
