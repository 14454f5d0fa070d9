#include "host/springboard/icon/folder_icon.h"

#include "host/springboard/icon/icon_image.h"
#include "host/springboard/model/strings.h"

namespace host::springboard {

SBFolderIcon FolderIcon::make(const std::string& id) {
  const SBFolderIcon made = SBFolderIcon::alloc().init();
  objc::state_of<FolderIcon>(made).id_.reset(to_ns(id));
  return made;
}

bool FolderIcon::update(const std::string& title, NSArray icons) {
  const NSString new_title = to_ns(title);
  if (icons_ && icons_->isEqualToArray(icons) && title_->isEqualToString(new_title)) return false;
  title_.reset(new_title);
  icons_.reset(icons);
  image_.reset();
  return true;
}

UIImage FolderIcon::generate_icon_image(int format) {
  if (!image_) {
    const auto images = NSMutableArray::array();
    for (const SBIcon icon : icons_->of<SBIcon>()) {
      if (const UIImage image = icon.generateIconImage(format)) images.addObject(image);
    }
    image_.reset(folder_image(images));
  }
  return image_.get();
}

void export_folder_icon() {
  objc::ClassBuilder("SBFolderIcon", "SBIcon")
      .state<FolderIcon>()
      .method<&FolderIcon::node_identifier>("nodeIdentifier")
      .method<&FolderIcon::display_name>("displayName")
      .method<&FolderIcon::is_folder_icon>("isFolderIcon")
      .method<&FolderIcon::generate_icon_image>("generateIconImage:")
      .finish();
}

}  // namespace host::springboard
