#include "tests/support/photograph.h"

#include <cmath>
#include <cstdlib>
#include <vector>

#include "host/quartzcore/compositing/compositor.h"
#include "host/runtime/device_model.h"
#include "host/uikit/geometry/window_list.h"

namespace host::test {

void photograph(const std::string& name, double now) {
  const char* folder = std::getenv("SONAVUE_PHOTOGRAPHS");
  if (!folder) return;
  const DeviceModel& device = current_device();
  const auto pixels = [&](double points) {
    return static_cast<int>(std::lround(points * device.scale));
  };
  quartzcore::Compositor compositor(pixels(device.width), pixels(device.height), device.scale);
  std::vector<CALayer> roots;
  for (const UIWindow window : uikit::visible_windows())
    roots.push_back(window.layer());
  compositor.render(roots, now);
  const std::string file = std::string(folder) + "/" + name + ".png";
  cairo_surface_write_to_png(compositor.surface().get(), file.c_str());
}

}  // namespace host::test
