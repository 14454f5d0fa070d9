#include "host/home_screen/phone_mode.h"

#include "host/springboard/system/system_actions.h"

namespace host::launcher {

activator::Mode PhoneMode::present_mode() const {
  switch (springboard::shown_now()) {
    case springboard::Shown::LockScreen:
      return activator::Mode::LockScreen;
    case springboard::Shown::Application:
      return activator::Mode::Application;
    case springboard::Shown::HomeScreen:
      break;
  }
  return activator::Mode::SpringBoard;
}

}  // namespace host::launcher
