#pragma once

#include <map>
#include <utility>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBIconViewMap.h"

namespace host::springboard {

/// Keeps one view per icon; moving an icon never creates another view for it.
class IconViewMap : public objc::Implementation<IconViewMap, SBIconViewMap> {
 public:
  using Implementation::Implementation;

  SBIconView mapped_icon_view_for_icon(SBIcon icon) const;
  /// Returns the icon's view and creates it if necessary.
  SBIconView view_for(SBIcon icon, objc::Object delegate);
  /// Stops reporting touches. An extension may retain a view for longer than the home screen lives.
  void forget_delegate() const;
  /// Calls `visit` for each view.
  template <class Visit>
  void for_each(Visit visit) const {
    for (const auto& [icon, view] : views_)
      visit(view.get());
  }
  /// Removes every view whose icon `keep` rejects from the screen.
  template <class Keep>
  void remove_unless(Keep keep) {
    std::erase_if(views_, [&](const auto& entry) {
      if (keep(entry.second->icon())) return false;
      entry.second->setDelegate(nil);
      entry.second->removeFromSuperview();
      return true;
    });
  }

 private:
  std::map<objc::Id, objc::Ref<SBIconView>> views_;
};

/// The home screen's.
inline IconViewMap& view_map() {
  return objc::state_of<IconViewMap>(SBIconViewMap::homescreenMap());
}

void export_icon_view_map();

}  // namespace host::springboard
