#include "settings/pane/credits_page.h"

#include "objc/class_builder.h"
#include "settings/globals.h"
#include "settings/pane/specifiers.h"

namespace sonavue {
namespace {

NSArray specifiers(creatorsController self) {
  settings::set_where(self);
  if (!self.cached_specifiers()) {
    self.setSpecifiers(NSArray::arrayWithObjects(
        PSSpecifier::emptyGroupSpecifier(), group_with_header(self, "developerCell"_ns),
        PSSpecifier::emptyGroupSpecifier(), group_with_header(self, "designerCell"_ns)));
  }
  return self.cached_specifiers();
}

}  // namespace

void make_credits_page() {
  objc::ClassBuilder("creatorsController", "PSListController")
      .method<&specifiers>("specifiers")
      .finish();
}

}  // namespace sonavue
