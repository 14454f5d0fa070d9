#pragma once

#include "host/screen/window.h"
#include "host/uikit/text/clipboard.h"

namespace host::launcher {

/// Shares the clipboard between the phone and the desktop, in both directions.
class WindowClipboard final : public uikit::Clipboard {
 public:
  explicit WindowClipboard(screen::Window& window) : window_(window) { uikit::set_clipboard(this); }
  ~WindowClipboard() override { uikit::set_clipboard(nullptr); }
  WindowClipboard(const WindowClipboard&) = delete;
  WindowClipboard& operator=(const WindowClipboard&) = delete;

  std::string text() override { return window_.clipboard_text(); }
  void set_text(const std::string& text) override { window_.set_clipboard_text(text); }

 private:
  screen::Window& window_;
};

}  // namespace host::launcher
