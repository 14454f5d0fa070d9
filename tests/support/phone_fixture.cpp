#include "tests/support/phone_fixture.h"

#include <cmath>
#include <utility>

#include "host/quartzcore/service/exports.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/system/exports.h"
#include "host/uikit/application/application.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/scroll/exports.h"
#include "host/uikit/text/exports.h"
#include "platform/SpringBoard/SBIconViewMap.h"

namespace host::test {
namespace {

constexpr int kFinger = 1;

void export_platform() {
  quartzcore::export_quartzcore();
  uikit::export_drawing();
  uikit::export_application();
  uikit::export_text();
  uikit::export_scroll();
  springboard::export_springboard();
}

}  // namespace

PhoneTest::PhoneTest(std::string_view model) : PhoneTest(*device_model(model)) {}

PhoneTest::PhoneTest(const DeviceModel& model) {
  set_current_device(model);
  export_platform();
  std::string pattern = (std::filesystem::temp_directory_path() / "phone-XXXXXX").string();
  device = mkdtemp(pattern.data());
  std::filesystem::copy(SONAVUE_APPLICATIONS, device / "Applications",
                        std::filesystem::copy_options::recursive);
  springboard::Configuration configuration;
  configuration.applications_folder = (device / "Applications").string();
  configuration.icon_state_path = (device / "IconState.plist").string();
  configuration.pictures_folder = SONAVUE_SPRINGBOARD_PICTURES;
  springboard::configure(configuration);
  layers = std::make_unique<quartzcore::LayerService>(loop);
}

PhoneTest::~PhoneTest() {
  end();
  layers.reset();
  std::filesystem::remove_all(device);
  set_current_device(*device_model(kDefaultDevice));
}

void PhoneTest::launch() {
  end();
  application = objc::cast<SpringBoard>(uikit::launch_application("SpringBoard"));
  advance(0.1);
}

void PhoneTest::end() {
  objc::AutoreleasePool pool;
  std::exchange(application, SpringBoard()).release();
  // Its shared objects exist from their first use, launched or not.
  springboard::forget_springboard();
}

void PhoneTest::remove_application(const std::string& name) const {
  std::filesystem::remove_all(device / "Applications" / (name + ".app"));
}

SBIcon PhoneTest::icon(const std::string& bundle) const {
  return SBIconController::sharedInstance().model().expectedIconForDisplayIdentifier(
      springboard::to_ns(bundle));
}

SBIconView PhoneTest::icon_view(const std::string& bundle) const {
  return SBIconViewMap::homescreenMap().mappedIconViewForIcon(icon(bundle));
}

CGPoint PhoneTest::on_screen(SBIconView view) const {
  const CGFloat middle = view.bounds().size.width / 2;
  return view.convertPointToView({middle, middle}, nil);
}

void PhoneTest::press(CGPoint point) {
  finger_ = point;
  touches.began(kFinger, point, clock.now());
  loop.run_ready();
}

void PhoneTest::move(CGPoint point) {
  finger_ = point;
  touches.moved(kFinger, point, clock.now());
  loop.run_ready();
}

void PhoneTest::lift() {
  touches.ended(kFinger, finger_, clock.now());
  loop.run_ready();
}

void PhoneTest::tap(CGPoint point) {
  press(point);
  advance(0.05);
  lift();
}

void PhoneTest::drag(CGPoint from, CGPoint to, double seconds, double rest) {
  press(from);
  const int frames = std::max(1, static_cast<int>(std::lround(seconds / RunLoop::kFrame)));
  for (int frame = 1; frame <= frames; ++frame) {
    advance(RunLoop::kFrame);
    const double share = static_cast<double>(frame) / frames;
    move({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
  }
  advance(rest);
}

}  // namespace host::test
