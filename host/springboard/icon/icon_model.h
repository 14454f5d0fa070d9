#pragma once

#include <map>
#include <string>

#include "host/foundation/property_list_file.h"
#include "host/springboard/model/home_layout.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBIconModel.h"

namespace host::springboard {

/// The icons of the installed applications and folders, and their arrangement, which is read from
/// the device when the object is created.
class IconModel : public objc::Implementation<IconModel, SBIconModel> {
 public:
  explicit IconModel(SBIconModel owner);

  SBIcon expected_icon_for_display_identifier(NSString identifier) const;
  NSArray leaf_icons() const;

  HomeLayout& layout() { return layout_; }
  /// Returns the icon of the slot; creates it for a new folder. Nil for an application that is not
  /// installed.
  SBIcon icon(const Slot& slot);
  SBIcon application_icon(const std::string& bundle) const;
  /// Returns the icons of the applications inside a folder.
  NSArray folder_contents(const Slot& folder) const;
  /// Removes the application's icon from the arrangement.
  void remove_application(const std::string& bundle);
  /// Forgets the icons of folders that no longer exist.
  void forget_lost_folders();
  /// Writes the arrangement to the device.
  void save() const;

 private:
  std::map<std::string, objc::Ref<SBIcon>> applications_;
  std::map<std::string, objc::Ref<SBIcon>> folders_;
  HomeLayout layout_;
  foundation::PropertyListFile saved_;
};

void export_icon_model();

}  // namespace host::springboard
