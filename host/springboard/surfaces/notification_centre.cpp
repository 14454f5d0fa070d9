#include "host/springboard/surfaces/notification_centre.h"

namespace host::springboard {

void export_notification_centre() {
  objc::ClassBuilder("SBNotificationCenterViewController", "UIViewController")
      .state<NotificationCentre>()
      .method<&NotificationCentre::host_will_present>("hostWillPresent")
      .method<&NotificationCentre::is_presented>("isPresented")
      .finish();
}

}  // namespace host::springboard
