#include "settings/Settings.h"

#include "objc/autorelease_pool.h"
#include "settings/credits/author_cell.h"
#include "settings/pane/configuration_page.h"
#include "settings/pane/credits_page.h"
#include "settings/pane/header_cell.h"
#include "settings/pane/root_page.h"
#include "settings/pane/style_page.h"
#include "settings/pane/switch_cell.h"
#include "settings/wizard/choice_pickers.h"
#include "settings/wizard/linker.h"
#include "settings/wizard/locked_view_controller.h"
#include "settings/wizard/switcher.h"
#include "ui/UIViewShimmer.h"

// Registers the classes of the settings' pages. The library is also loaded into the home screen;
// classes whose base belongs to the settings application are not made there.

namespace sonavue {

void make_settings_classes() {
  make_shimmer();
  make_linker();
  make_switcher();
  make_locked_view_controller();
  make_choice_pickers();
  make_header_cell();
  make_switch_cell();
  make_author_cells();
  make_credits_page();
  make_style_page();
  make_configuration_page();
  make_root_page();
}

namespace {

[[gnu::constructor]] void load() {
  const objc::AutoreleasePool pool;
  make_settings_classes();
}

}  // namespace
}  // namespace sonavue
