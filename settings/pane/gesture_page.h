#pragma once

#include "objc/ref.h"
#include "platform/Activator/LAListenerSettingsViewController.h"

namespace sonavue {

/// The gesture service's page for our listener. It uses the listener's name without the 2 of the
/// registered one: existing installations have gestures under either name.
[[nodiscard]] objc::Ref<LAListenerSettingsViewController> make_gesture_page();

/// Presents that page over `over`, with a button that sends `dismiss` to `over`.
void present_gesture_page(UIViewController over);

}  // namespace sonavue
