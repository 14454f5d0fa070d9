#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Preferences/PSSwitchTableCell.h"

namespace host::preferences {

/// A row whose control passes its value to the specifier's setter.
class ControlCell : public objc::Implementation<ControlCell, PSControlTableCell> {
 public:
  explicit ControlCell(PSControlTableCell owner) : Implementation(owner) {}
  ~ControlCell();

  PSTableCell init(UITableViewCellStyle style, NSString reuse_identifier, PSSpecifier specifier);
  UIControl control() const { return control_.get(); }
  void set_control(UIControl control);
  UIControl new_control() { return nil; }
  objc::Object control_value() { return nil; }
  void control_changed(UIControl sender);

 private:
  void detach_control();

  objc::Ref<UIControl> control_;
};

class SwitchCell : public objc::Implementation<SwitchCell, PSSwitchTableCell> {
 public:
  explicit SwitchCell(PSSwitchTableCell owner) : Implementation(owner) {}

  UIControl new_control();
  objc::Object control_value();
  void refresh(PSSpecifier specifier);
};

void export_control_cells();

}  // namespace host::preferences
