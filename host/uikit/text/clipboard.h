#pragma once

#include <string>

namespace host::uikit {

/// Text that was copied: of this process alone, or of the desktop's where there is a window.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// As UTF-8; empty when nothing was copied.
  virtual std::string text() = 0;
  virtual void set_text(const std::string& text) = 0;
};

Clipboard& clipboard();
/// Takes another one from now on, which has to outlive its use; nullptr means the process's own.
void set_clipboard(Clipboard* clipboard);

}  // namespace host::uikit
