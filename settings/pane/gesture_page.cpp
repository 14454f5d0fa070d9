#include "settings/pane/gesture_page.h"

#include "platform/UIKit/UINavigationController.h"
#include "settings/texts.h"

namespace sonavue {

LAListenerSettingsViewController make_gesture_page() {
  const auto page = LAListenerSettingsViewController::alloc().init();
  page.setListenerName("org.plumvane.Sonavue"_ns);
  return page;
}

void present_gesture_page(UIViewController over) {
  const auto page = make_gesture_page().autorelease();
  if (!page) return;
  const auto stack = UINavigationController::alloc().initWithRootViewController(page);
  over.presentViewController(stack, YES, nullptr);
  const auto cancel = UIBarButtonItem::alloc().initWithTitle(
      Translator("cancel"_ns), UIBarButtonItemStyleBordered, over, "dismiss"_sel);
  page.navigationItem().setRightBarButtonItem(cancel);
  page.setTitle("Activator"_ns);
  cancel.release();
  stack.release();
}

}  // namespace sonavue
