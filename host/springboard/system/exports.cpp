#include "host/springboard/system/exports.h"

#include "host/springboard/application/application.h"
#include "host/springboard/application/application_controller.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/home/icon_controller.h"
#include "host/springboard/icon/application_icon.h"
#include "host/springboard/icon/folder_icon.h"
#include "host/springboard/icon/icon.h"
#include "host/springboard/icon/icon_model.h"
#include "host/springboard/parts/slider.h"
#include "host/springboard/parts/surface_action.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/processes/application_view.h"
#include "host/springboard/surfaces/banner_controller.h"
#include "host/springboard/surfaces/control_centre.h"
#include "host/springboard/surfaces/lock_screen.h"
#include "host/springboard/surfaces/notification_centre.h"
#include "host/springboard/surfaces/reachability.h"
#include "host/springboard/switcher/app_switcher.h"
#include "host/springboard/system/spring_board_application.h"
#include "host/springboard/system/ui_controller.h"
#include "host/springboard/view/icon_list_view.h"
#include "host/springboard/view/icon_view.h"
#include "host/springboard/view/icon_view_map.h"
#include "host/uikit/focus/focus_stops.h"
#include "platform/SpringBoard/SBIconView.h"

namespace host::springboard {

void export_springboard() {
  if (objc_getClass("SpringBoard")) return;
  export_application();
  export_application_controller();
  export_icon();
  export_application_icon();
  export_folder_icon();
  export_icon_model();
  export_icon_view();
  export_icon_view_map();
  export_icon_list_view();
  export_dock_icon_list_view();
  export_folder_icon_list_view();
  export_icon_controller();
  export_surface_action();
  export_surface_window();
  export_slider();
  export_app_switcher();
  export_application_view();
  export_banner_controller();
  export_control_centre_view();
  export_control_centre();
  export_lock_screen();
  export_notification_centre();
  export_reachability();
  export_ui_controller();
  export_spring_board_application();
  uikit::add_focus_class(SBIconView::cls());
}

void forget_springboard() {
  SharedInstances::forget_all();
}

}  // namespace host::springboard
