#include "settings/pane/credits_page.h"

#include "settings/credits/author_cell.h"
#include "settings/globals.h"
#include "settings/pane/specifiers.h"

namespace sonavue {
namespace {

NSArray credits_rows(creatorsController self) {
  settings::set_where(self);
  if (!self.cached_specifiers()) {
    self.setSpecifiers(NSArray::arrayWithObjects(
        PSSpecifier::emptyGroupSpecifier(), group_with_header<developerCell>(self),
        PSSpecifier::emptyGroupSpecifier(), group_with_header<designerCell>(self)));
  }
  return self.cached_specifiers();
}

}  // namespace

void make_credits_page() {
  objc::make_own_class<creatorsController>(
      [](objc::ClassBuilder& builder) { builder.method<&credits_rows>("specifiers"); });
}

}  // namespace sonavue
