#include "host/home_screen/window_service.h"

namespace host::launcher {
namespace {

// In seconds. Drawing may read events from the descriptor without handling them; they wait no
// longer than this.
constexpr double kLookAnyway = 0.25;

}  // namespace

WindowService::WindowService(RunLoop& loop, screen::Window& window) : loop_(loop) {
  const auto handle = [&window] { window.handle_events(); };
  const int descriptor = window.event_descriptor();
  if (descriptor >= 0) watch_ = loop_.watch(descriptor, handle);
  const double pause = descriptor >= 0 ? kLookAnyway : RunLoop::kFrame;
  timer_ = loop_.add_timer(loop_.now() + pause, pause, handle);
}

WindowService::~WindowService() {
  loop_.remove_timer(timer_);
  if (watch_) loop_.unwatch(watch_);
}

}  // namespace host::launcher
