#include "host/springboard/view/icon_view_map.h"

#include "host/springboard/shared_instance.h"
#include "host/springboard/view/icon_view.h"

namespace host::springboard {

void IconViewMap::forget_listener() const {
  for_each([](SBIconView view) { objc::state_of<IconView>(view).forget_listener(); });
}

SBIconView IconViewMap::mapped_icon_view_for_icon(SBIcon icon) const {
  const auto found = views_.find(icon.id());
  return found == views_.end() ? SBIconView() : found->second.get();
}

SBIconView IconViewMap::view_for(SBIcon icon, IconTouchListener& listener) {
  auto& view = views_[icon.id()];
  if (!view) view = objc::Ref<SBIconView>::adopt(IconView::make(icon, listener));
  return view.get();
}

void export_icon_view_map() {
  objc::ClassBuilder("SBIconViewMap", "NSObject")
      .state<IconViewMap>()
      .class_method<&shared_instance<SBIconViewMap>>("homescreenMap")
      .method<&IconViewMap::mapped_icon_view_for_icon>("mappedIconViewForIcon:")
      .finish();
}

}  // namespace host::springboard
