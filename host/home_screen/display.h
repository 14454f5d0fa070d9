#pragma once

#include <memory>
#include <optional>

#include "host/browser/phone/phone_page.h"
#include "host/home_screen/process_options.h"
#include "host/home_screen/window_clipboard.h"
#include "host/home_screen/window_service.h"

namespace host::launcher {

/// The phone's display: a window on the desktop, a page in a browser, or nothing that can be seen.
class Display {
 public:
  /// Asleep at first. Null, with a line in the log, when the desktop cannot show a window.
  static std::unique_ptr<Display> open(const ProcessOptions& options, RunLoop& loop,
                                       screen::Input& input);

  screen::Screen& screen();

  /// Null unless the phone is shown in a browser.
  browser::PhonePage* page() const { return page_.get(); }

  /// Without a window these do nothing.
  bool has_window() const { return window_ != nullptr; }
  bool is_in_front() const;
  /// Brings the window in front, or prints a new link to the page.
  void raise() const;
  /// Whether touches and keys reach the phone.
  void set_awake(bool is_awake) const;

 private:
  explicit Display(bool is_blind) : invisible_(is_blind) {}

  bool open_window(RunLoop& loop, screen::Input& input);
  bool open_page(const ProcessOptions& options, RunLoop& loop, screen::Input& input);

  screen::Headless invisible_;
  std::optional<screen::PhoneBody> body_;
  std::unique_ptr<browser::PhonePage> page_;
  std::unique_ptr<screen::Window> window_;
  std::optional<WindowService> service_;
  std::optional<WindowClipboard> clipboard_;
};

}  // namespace host::launcher
