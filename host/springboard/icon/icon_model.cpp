#include "host/springboard/icon/icon_model.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/icon/folder_icon.h"
#include "host/springboard/model/default_layout.h"
#include "host/springboard/model/strings.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/SpringBoard/SBApplicationIcon.h"

namespace host::springboard {

IconModel::IconModel(SBIconModel owner)
    : Implementation(owner), saved_(configuration().icon_state_path) {
  std::vector<InstalledApplication> installed;
  const NSArray all = SBApplicationController::sharedInstance().allApplications();
  for (const SBApplication application : all.of<SBApplication>()) {
    const std::string bundle = to_string(application.bundleIdentifier());
    installed.push_back({bundle, to_string(application.displayName()), {}});
    const SBIcon icon = SBApplicationIcon::alloc().initWithApplication(application);
    applications_.emplace(bundle, objc::Ref<SBIcon>::adopt(icon));
  }
  const GridMetrics grid = screen_grid();
  const HomeLayout::Capacity capacity{grid.page_capacity(), grid.dock_capacity,
                                      FolderMetrics::kCapacity};
  const auto saved = read_icon_state(saved_, capacity);
  layout_ = saved ? fit_to_installed(*saved, installed) : default_layout(capacity, installed);
}

SBIcon IconModel::expected_icon_for_display_identifier(NSString identifier) const {
  return application_icon(to_string(identifier));
}

NSArray IconModel::leaf_icons() const {
  const auto icons = NSMutableArray::array();
  for (const auto& [bundle, icon] : applications_)
    icons.addObject(icon.get());
  return icons;
}

SBIcon IconModel::application_icon(const std::string& bundle) const {
  const auto found = applications_.find(bundle);
  return found == applications_.end() ? SBIcon() : found->second.get();
}

SBIcon IconModel::icon(const Slot& slot) {
  if (!slot.is_folder) return application_icon(slot.id);
  auto& icon = folders_[slot.id];
  if (!icon) icon = objc::Ref<SBIcon>::adopt(FolderIcon::make(slot.id));
  return icon.get();
}

NSArray IconModel::folder_contents(const Slot& folder) const {
  const auto icons = NSMutableArray::array();
  for (const std::string& bundle : folder.contents) {
    if (const SBIcon icon = application_icon(bundle)) icons.addObject(icon);
  }
  return icons;
}

void IconModel::remove_application(const std::string& bundle) {
  layout_.remove(bundle);
  applications_.erase(bundle);
}

void IconModel::forget_lost_folders() {
  std::erase_if(folders_, [&](const auto& entry) { return !layout_.contains(entry.first); });
}

void IconModel::save() const {
  write_icon_state(layout_, saved_);
}

void export_icon_model() {
  objc::ClassBuilder("SBIconModel", "NSObject")
      .state<IconModel>()
      .method<&IconModel::expected_icon_for_display_identifier>("expectedIconForDisplayIdentifier:")
      .method<&IconModel::expected_icon_for_display_identifier>(
          "applicationIconForBundleIdentifier:")
      .method<&IconModel::leaf_icons>("leafIcons")
      .finish();
}

}  // namespace host::springboard
