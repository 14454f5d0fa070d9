#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/device_model.h"
#include "host/springboard/model/grid_metrics.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBIconView.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "tests/support/host_test.h"

namespace host::test {

inline constexpr const char* kMusic = "com.apple.Music";
inline constexpr const char* kPhone = "com.apple.mobilephone";
inline constexpr const char* kCalendar = "com.apple.mobilecal";
inline constexpr const char* kPhotos = "com.apple.mobileslideshow";
inline constexpr const char* kCalculator = "com.apple.calculator";

/// A complete home screen with the preinstalled applications, copied to a device for this test, and
/// a finger to use it.
class PhoneTest : public host::test::HostTest {
 public:
  explicit PhoneTest(std::string_view model = kDefaultDevice);
  explicit PhoneTest(const DeviceModel& model);
  ~PhoneTest() override;

  /// Reads the device and shows the home screen; another call restarts it.
  void launch();
  /// Removes an installed application's folder; call it before the launch.
  void remove_application(const std::string& name) const;

  SBIcon icon(const std::string& bundle) const;
  SBIconView icon_view(const std::string& bundle) const;
  /// Returns the centre of the icon's image on the screen.
  CGPoint on_screen(SBIconView view) const;
  CGPoint on_screen(const std::string& bundle) const { return on_screen(icon_view(bundle)); }

  void press(CGPoint point);
  void move(CGPoint point);
  void lift();
  void tap(CGPoint point);
  /// Presses at `from`, moves to `to` in `seconds`, frame by frame, and rests there for `rest`
  /// seconds; the finger stays down.
  void drag(CGPoint from, CGPoint to, double seconds, double rest = 0);
  /// Lets every animation finish.
  void settle() { advance(2); }

  std::filesystem::path device;

 protected:
  void end();

  std::unique_ptr<quartzcore::LayerService> layers;
  uikit::TouchInput touches;
  SpringBoard application;

 private:
  CGPoint finger_;
};

}  // namespace host::test
