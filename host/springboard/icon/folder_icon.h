#pragma once

#include <string>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBFolderIcon.h"

namespace host::springboard {

class FolderIcon : public objc::Implementation<FolderIcon, SBFolderIcon> {
 public:
  using Implementation::Implementation;

  /// Returns a new icon for the folder with this identifier in the layout; the caller owns it (+1).
  static SBFolderIcon make(const std::string& id);
  /// Sets the folder's title and contents. Returns true when its icon looks different afterwards.
  bool update(const std::string& title, NSArray icons);

  NSString node_identifier() const { return id_.get(); }
  NSString display_name() const { return title_.get(); }
  BOOL is_folder_icon() const { return YES; }
  NSArray icons() const { return icons_.get(); }
  UIImage generate_icon_image(int format);

 private:
  objc::Ref<NSString> id_;
  objc::Ref<NSString> title_;
  objc::Ref<NSArray> icons_;
  objc::Ref<UIImage> image_;
};

void export_folder_icon();

}  // namespace host::springboard
