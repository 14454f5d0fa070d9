#include "settings/pane/configuration_page.h"

#include "objc/own_class.h"
#include "settings/pane/specifiers.h"
#include "settings/pane/style_page.h"

struct configurationController
    : objc::Own<configurationController, "configurationController", PSListController> {};

namespace sonavue {
namespace {

NSArray configuration_rows(configurationController self) {
  if (!self.cached_specifiers()) {
    self.setSpecifiers(NSArray::arrayWithObjects(
        group_with_footer("desc_style"_ns), link_row(self, "style"_ns, styleController::cls())));
  }
  return self.cached_specifiers();
}

}  // namespace

void make_configuration_page() {
  objc::make_own_class<configurationController>(
      [](objc::ClassBuilder& builder) { builder.method<&configuration_rows>("specifiers"); });
}

}  // namespace sonavue
