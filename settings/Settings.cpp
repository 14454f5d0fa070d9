#include "objc/autorelease_pool.h"
#include "settings/wizard/linker.h"
#include "settings/wizard/locked_view_controller.h"
#include "settings/wizard/switcher.h"
#include "ui/UIViewShimmer.h"

// The classes of the settings' pages. The library comes into the home screen too, where those are
// missing that derive from the settings application's own.

namespace sonavue {
namespace {

[[gnu::constructor]] void load() {
  const objc::AutoreleasePool pool;
  make_shimmer();
  make_linker();
  make_switcher();
  make_locked_view_controller();
}

}  // namespace
}  // namespace sonavue
