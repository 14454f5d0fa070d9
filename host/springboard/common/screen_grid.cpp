#include "host/springboard/common/screen_grid.h"

#include "platform/UIKit/UIScreen.h"

namespace host::springboard {
namespace {

constexpr CGFloat kNarrowestTablet = 700;

}  // namespace

GridMetrics screen_grid() {
  return GridMetrics::for_screen(UIScreen::mainScreen().bounds().size);
}

bool is_tablet_screen() {
  return UIScreen::mainScreen().bounds().size.width >= kNarrowestTablet;
}

}  // namespace host::springboard
