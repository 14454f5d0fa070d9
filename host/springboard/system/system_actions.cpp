#include "host/springboard/system/system_actions.h"

#include "host/springboard/application/application_controller.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/home/icon_controller.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/switcher/recent_applications.h"
#include "host/springboard/system/ui_controller.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/SpringBoard/SBLockScreenViewController.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

HomeLayout& layout() {
  return icon_controller().icon_model().layout();
}

/// Shows and saves the arrangement if it was changed; returns `changed`.
bool shown(bool changed) {
  if (changed) icon_controller().layout_changed();
  return changed;
}

const Slot* folder_with_room() {
  for (const HomeLayout::List& page : layout().pages()) {
    for (const Slot& slot : page) {
      if (slot.is_folder && slot.contents.size() < layout().capacity().folder) return &slot;
    }
  }
  return nullptr;
}

/// Another application on the first page that has one, preferably next to the icon.
const Slot* neighbour(std::string_view bundle) {
  const auto place = layout().find(bundle);
  const std::size_t first = place && place->area == Area::kPage ? place->page : 0;
  const Slot* last = nullptr;
  for (const Slot& slot : layout().pages().at(first)) {
    if (slot.id == bundle && last) return last;
    if (slot.id != bundle) last = &slot;
  }
  return last;
}

bool is_in(std::string_view bundle, Area area) {
  const auto place = layout().find(bundle);
  return place && place->area == area;
}

}  // namespace

void set_editing(bool editing) {
  SBIconController::sharedInstance().setIsEditing(editing ? YES : NO);
}

Shown shown_now() {
  if (is_locked()) return Shown::LockScreen;
  const auto& user_interface =
      objc::state_of<UserInterfaceController>(SBUIController::sharedInstance());
  return user_interface.shows_application() ? Shown::Application : Shown::HomeScreen;
}

bool open(std::string_view bundle) {
  const SBApplication found = installed_application(bundle);
  SBUIController::sharedInstance().activateApplicationAnimated(found);
  return static_cast<bool>(found);
}

bool uninstall(std::string_view bundle) {
  const SBApplication found = installed_application(bundle);
  if (!found) return false;
  recent_applications().forget(std::string(bundle));
  icon_controller().icon_model().remove_application(std::string(bundle));
  icon_controller().layout_changed();
  SBApplicationController::sharedInstance().uninstallApplication(found);
  return true;
}

bool move_to_folder(std::string_view bundle) {
  if (!layout().contains(bundle) || is_in(bundle, Area::kFolder)) return false;
  const Slot* target = folder_with_room();
  if (!target) target = neighbour(bundle);
  if (!target) return false;
  const std::string target_id = target->id;
  return shown(layout().drop_on(bundle, target_id, kNewFolderTitle));
}

bool move_out_of_folder(std::string_view bundle) {
  return shown(layout().move_out_of_folder(bundle));
}

bool move_to_dock(std::string_view bundle) {
  if (is_in(bundle, Area::kDock)) return false;
  return shown(layout().move(bundle, {Area::kDock, 0, {}, layout().dock().size()}));
}

bool move_out_of_dock(std::string_view bundle) {
  if (!is_in(bundle, Area::kDock)) return false;
  return shown(layout().move(bundle, {Area::kPage, 0, {}, layout().pages().front().size()}));
}

}  // namespace host::springboard
