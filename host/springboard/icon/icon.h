#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBIcon.h"

namespace host::springboard {

/// The base class of all icons: no application, no name, no image. Subclasses override these.
class Icon : public objc::Implementation<Icon, SBIcon> {
 public:
  using Implementation::Implementation;

  SBApplication application() const { return nil; }
  NSString application_bundle_id() const { return self.application().bundleIdentifier(); }
  NSString node_identifier() const { return self.applicationBundleID(); }
  NSString display_name() const { return ""_ns; }
  BOOL is_folder_icon() const { return NO; }
  UIImage generate_icon_image(int) { return nil; }
};

void export_icon();

}  // namespace host::springboard
