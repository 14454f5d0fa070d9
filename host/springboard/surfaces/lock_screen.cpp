#include "host/springboard/surfaces/lock_screen.h"

namespace host::springboard {

void export_lock_screen() {
  objc::ClassBuilder("SBLockScreenViewController", "UIViewController")
      .state<LockScreen>()
      .method<&LockScreen::handle_display_turned_off>("_handleDisplayTurnedOff")
      .method<&LockScreen::prepare_for_unlock>("prepareForUIUnlock")
      .method<&LockScreen::is_locked>("isLocked")
      .finish();
}

}  // namespace host::springboard
