#pragma once

#include <string>

namespace host::uikit {

/// The copied text: of this process only, or the desktop's clipboard when there is a window.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// Returns the text as UTF-8; empty when nothing was copied.
  virtual std::string text() = 0;
  virtual void set_text(const std::string& text) = 0;
};

Clipboard& clipboard();
/// Sets the clipboard to use, which must outlive its use; nullptr selects the process's own.
void set_clipboard(Clipboard* clipboard);

}  // namespace host::uikit
