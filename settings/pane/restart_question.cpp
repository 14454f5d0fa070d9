#include "settings/pane/restart_question.h"

#include "objc/ref.h"
#include "platform/POSIX/system.h"
#include "platform/UIKit/UIAlertView.h"
#include "settings/globals.h"
#include "settings/preferences.h"

namespace sonavue {
namespace {

constexpr NSInteger kYes = 1;

}  // namespace

void ask_for_restart(styleController page, objc::Object wanted) {
  settings::value1 = wanted;
  const auto alert = objc::adopt(UIAlertView::alloc().initWithTitle(
      "Apex Support"_ns, "Are you sure you want to restart SpringBoard?"_ns, page, "No"_ns));
  alert->addButtonWithTitle("Yes"_ns);
  alert->show();
}

void restart_answered(styleController page, NSInteger button) {
  if (button != kYes) return page.reloadSpecifiers();
  // The home screen reads the file when it starts, so there is nothing to announce.
  store_unannounced(settings::value1, preference::apex());
  system("killall SpringBoard");
}

}  // namespace sonavue
