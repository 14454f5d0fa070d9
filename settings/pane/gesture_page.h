#pragma once

#include "objc/ref.h"
#include "platform/Activator/LAListenerSettingsViewController.h"

namespace sonavue {

/// The service's page for our gestures, made by `new`. It names a listener without the 2 of the
/// one that is registered: existing installations have their gestures under either name.
[[nodiscard]] objc::Ref<LAListenerSettingsViewController> make_gesture_page();

/// Shows it over the page, with a button that sends `dismiss` to it.
void present_gesture_page(UIViewController over);

}  // namespace sonavue
