#include "host/springboard/surfaces/volume_overlay.h"

#include "host/uikit/geometry/window_list.h"
#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class VolumeOverlayTest : public SurfaceTest {
 protected:
  VolumeOverlay& overlay() { return SharedPart<VolumeOverlay>::get(); }
};

TEST_F(VolumeOverlayTest, EachStepIsASixteenthOfTheVolume) {
  overlay().show(0.75);
  EXPECT_EQ(overlay().lit_steps(), 12);
  overlay().show(0);
  EXPECT_EQ(overlay().lit_steps(), 0);
}

TEST_F(VolumeOverlayTest, ItFadesAfterOneAndAHalfSeconds) {
  overlay().show(0.5);
  advance(1.4);
  EXPECT_TRUE(overlay().is_showing());
  EXPECT_TRUE(is_at_rest());
  advance(0.6);
  EXPECT_FALSE(overlay().is_showing());
}

TEST_F(VolumeOverlayTest, EveryPressProlongsIt) {
  press_volume(VolumeButton::kUp);
  advance(1);
  press_volume(VolumeButton::kUp);
  advance(1);
  EXPECT_TRUE(overlay().is_showing());
}

TEST_F(VolumeOverlayTest, ItIsAboveAlertsAndTheWindowsOfExtensions) {
  const auto alert =
      objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame({{0, 0}, screen()}));
  alert->setWindowLevel(UIWindowLevelAlert);
  alert->setHidden(NO);
  press_volume(VolumeButton::kUp);
  const UIWindow top = uikit::visible_windows().back();
  EXPECT_NE(top, *alert);
  EXPECT_FALSE(top.isUserInteractionEnabled()) << "and lets touches through";
  overlay().hide_at_once();
  EXPECT_EQ(uikit::visible_windows().back(), *alert);
  alert->setHidden(YES);
}

TEST_F(VolumeOverlayTest, TheControlCentreDoesNotNeedIt) {
  present_control_centre();
  settle();
  press_volume(VolumeButton::kUp);
  EXPECT_FALSE(overlay().is_showing());
}

}  // namespace
}  // namespace host::springboard
