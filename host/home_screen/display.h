#pragma once

#include <memory>
#include <optional>

#include "host/home_screen/process_options.h"
#include "host/home_screen/window_clipboard.h"
#include "host/home_screen/window_service.h"

namespace host::launcher {

/// The phone's display: a window on the desktop, or nothing that can be seen.
class Display {
 public:
  /// Asleep at first. Null, with a line in the log, when the desktop cannot show a window.
  static std::unique_ptr<Display> open(const ProcessOptions& options, RunLoop& loop,
                                       screen::Input& input);

  screen::Screen& screen();

  /// Without a window these do nothing.
  bool has_window() const { return window_ != nullptr; }
  bool is_in_front() const { return window_ && window_->is_in_front(); }
  void raise() const;
  /// Whether touches and keys reach the phone.
  void set_awake(bool is_awake) const;

 private:
  explicit Display(bool is_blind) : invisible_(is_blind) {}

  screen::Headless invisible_;
  std::unique_ptr<screen::Window> window_;
  std::optional<WindowService> service_;
  std::optional<WindowClipboard> clipboard_;
};

}  // namespace host::launcher
