#include "host/springboard/home/dock_ground.h"

#include "host/springboard/common/make_view.h"

namespace host::springboard {
namespace {

constexpr CGFloat kWhiteAlpha = 0.28;

}  // namespace

void add_dock_ground(UIView dock) {
  auto ground = make_view<UIView>(dock.bounds());
  ground->setBackgroundColor(UIColor::colorWithWhite(1, kWhiteAlpha));
  ground->setUserInteractionEnabled(NO);
  dock.addSubview(*ground);
}

}  // namespace host::springboard
