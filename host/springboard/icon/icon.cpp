#include "host/springboard/icon/icon.h"

namespace host::springboard {

void export_icon() {
  objc::ClassBuilder("SBIcon", "NSObject")
      .state<Icon>()
      .method<&Icon::application>("application")
      .method<&Icon::application_bundle_id>("applicationBundleID")
      .method<&Icon::node_identifier>("nodeIdentifier")
      .method<&Icon::display_name>("displayName")
      .method<&Icon::is_folder_icon>("isFolderIcon")
      .method<&Icon::generate_icon_image>("generateIconImage:")
      .finish();
}

}  // namespace host::springboard
