#include "host/home_screen/display.h"

#include "host/launcher/installation.h"
#include "host/launcher/log_file.h"
#include "host/runtime/device_model.h"
#include "host/runtime/log.h"

namespace host::launcher {

std::unique_ptr<Display> Display::open(const ProcessOptions& options, RunLoop& loop,
                                       screen::Input& input) {
  std::unique_ptr<Display> display(new Display(options.blind));
  if (options.headless) return display;
  const DeviceModel& device = current_device();
  const std::string memory =
      default_log_file().parent_path() / ("window-" + std::string(device.identifier));
  std::string problem;
  display->window_ =
      screen::Window::open({device.width, device.height}, device.scale, input, problem, memory);
  if (!display->window_) {
    spdlog::error("no window can be opened: {}; --headless --console needs none", problem);
    return nullptr;
  }
  display->window_->set_icon(find_installation().icon);
  display->service_.emplace(loop, *display->window_);
  display->clipboard_.emplace(*display->window_);
  display->set_awake(false);
  return display;
}

screen::Screen& Display::screen() {
  return window_ ? static_cast<screen::Screen&>(*window_) : invisible_;
}

void Display::raise() const {
  if (window_) window_->raise();
}

void Display::set_awake(bool is_awake) const {
  if (window_) window_->set_awake(is_awake);
}

}  // namespace host::launcher
