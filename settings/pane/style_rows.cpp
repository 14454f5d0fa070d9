#include "settings/pane/style_rows.h"

#include "settings/choices.h"
#include "settings/pane/specifiers.h"

namespace sonavue {

NSArray make_style_rows(styleController page) {
  return NSArray::arrayWithObjects(
      group_with_footer("desc_setup"_ns), action_row(page, "setup"_ns, "showFirstPage"_sel),
      group_with_footer("desc_apex"_ns), switch_row(page, "apex"_ns),
      group_with_footer("desc_cover"_ns), switch_row(page, "cover"_ns),
      group_with_footer("desc_square"_ns), switch_row(page, "square"_ns),
      group_with_footer("desc_cloud"_ns), switch_row(page, "cloud"_ns),
      group_with_footer("desc_legibility"_ns), switch_row(page, "legibility"_ns),
      group_with_footer("desc_gest"_ns), action_row(page, "activator"_ns, "activatorr"_sel),
      group_with_footer("desc_blur"_ns), list_row(page, "blur"_ns, blur_choices()),
      group_with_footer("desc_play"_ns), list_row(page, "play"_ns, ring_choices()),
      group_with_footer("desc_tint"_ns), list_row(page, "tint"_ns, color_choices()),
      group_with_footer("desc_font_tint"_ns), list_row(page, "font_tint"_ns, color_choices()));
}

}  // namespace sonavue
