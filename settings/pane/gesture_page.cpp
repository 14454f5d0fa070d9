#include "settings/pane/gesture_page.h"

#include "objc/ref.h"
#include "platform/UIKit/UINavigationController.h"
#include "settings/texts.h"

namespace sonavue {

objc::Ref<LAListenerSettingsViewController> make_gesture_page() {
  auto page = objc::adopt(LAListenerSettingsViewController::alloc().init());
  page->setListenerName("org.plumvane.Sonavue"_ns);
  return page;
}

void present_gesture_page(UIViewController over) {
  const auto page = make_gesture_page();
  if (!page) return;
  const auto stack = objc::adopt(UINavigationController::alloc().initWithRootViewController(page));
  over.presentViewController(stack, YES, nullptr);
  const auto cancel = objc::adopt(UIBarButtonItem::alloc().initWithTitle(
      Translator("cancel"_ns), UIBarButtonItemStyleBordered, over, "dismiss"_sel));
  page->navigationItem().setRightBarButtonItem(cancel);
  page->setTitle("Activator"_ns);
}

}  // namespace sonavue
