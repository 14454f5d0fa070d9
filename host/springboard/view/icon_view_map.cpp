#include "host/springboard/view/icon_view_map.h"

#include "host/springboard/common/shared_instance.h"
#include "host/springboard/view/icon_view.h"

namespace host::springboard {

void IconViewMap::forget_delegate() const {
  for_each([](SBIconView view) { view.setDelegate(nil); });
}

SBIconView IconViewMap::mapped_icon_view_for_icon(SBIcon icon) const {
  const auto found = views_.find(icon.id());
  return found == views_.end() ? SBIconView() : found->second.get();
}

SBIconView IconViewMap::view_for(SBIcon icon, objc::Object delegate) {
  auto& view = views_[icon.id()];
  if (!view) {
    view = objc::Ref<SBIconView>::adopt(IconView::make(icon));
    view->setDelegate(delegate);
  }
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
