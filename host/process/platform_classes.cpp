#include "host/process/platform_classes.h"

#include "host/activator/exports.h"
#include "host/foundation/exports.h"
#include "host/media_player/exports.h"
#include "host/preferences/exports.h"
#include "host/quartzcore/exports.h"
#include "host/social/exports.h"
#include "host/springboard/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/keyboard/exports.h"
#include "host/uikit/navigation/exports.h"
#include "host/uikit/scroll/exports.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/text/text_view.h"
#include "host/uikit/view/exports.h"

namespace host::process {

void export_platform_classes() {
  foundation::export_foundation();
  quartzcore::export_quartzcore();
  uikit::export_drawing();
  uikit::export_views();
  uikit::export_text();
  uikit::export_keyboard();
  uikit::export_scroll();
  uikit::export_text_view();
  uikit::export_navigation();
  media_player::export_media_player();
  springboard::export_springboard();
  social::export_social();
  activator::export_activator();
  preferences::export_preferences();
}

}  // namespace host::process
