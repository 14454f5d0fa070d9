#include "host/home_screen/display.h"

#include "host/launcher/browser_door.h"
#include "host/launcher/installation.h"
#include "host/launcher/log_file.h"
#include "host/runtime/device_model.h"
#include "host/runtime/log.h"

namespace host::launcher {

std::unique_ptr<Display> Display::open(const ProcessOptions& options, RunLoop& loop,
                                       screen::Input& input) {
  std::unique_ptr<Display> display(new Display(options.blind));
  const bool is_open = options.browser_descriptor >= 0 ? display->open_page(options, loop, input)
                       : options.headless              ? true
                                                       : display->open_window(loop, input);
  if (!is_open) return nullptr;
  display->set_awake(false);
  return display;
}

bool Display::open_window(RunLoop& loop, screen::Input& input) {
  const DeviceModel& device = current_device();
  const std::string memory =
      default_log_file().parent_path() / ("window-" + std::string(device.identifier));
  std::string problem;
  window_ =
      screen::Window::open({device.width, device.height}, device.scale, input, problem, memory);
  if (!window_) {
    spdlog::error(
        "no window can be opened: {}; --browser shows the phone on a page, and --headless "
        "--console needs neither",
        problem);
    return false;
  }
  window_->set_icon(find_installation().icon);
  service_.emplace(loop, *window_);
  clipboard_.emplace(*window_);
  return true;
}

bool Display::open_page(const ProcessOptions& options, RunLoop& loop, screen::Input& input) {
  auto access = browser::Access::open(options.access_descriptor);
  if (!access) {
    spdlog::error("no page can be offered to a browser: the launcher's memory is missing");
    return false;
  }
  const DeviceModel& device = current_device();
  body_.emplace(CGSize{device.width, device.height});
  page_ = std::make_unique<browser::PhonePage>(loop, options.browser_descriptor, std::move(access),
                                               *body_, device.scale, input, &say_link);
  return true;
}

screen::Screen& Display::screen() {
  if (page_) return page_->screen();
  return window_ ? static_cast<screen::Screen&>(*window_) : invisible_;
}

bool Display::is_in_front() const {
  return (window_ && window_->is_in_front()) || (page_ && page_->is_seen());
}

void Display::raise() const {
  if (window_) window_->raise();
  if (page_) page_->offer_link();
}

void Display::set_awake(bool is_awake) const {
  if (window_) window_->set_awake(is_awake);
  if (page_) page_->set_awake(is_awake);
}

}  // namespace host::launcher
