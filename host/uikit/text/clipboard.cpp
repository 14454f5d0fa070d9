#include "host/uikit/text/clipboard.h"

namespace host::uikit {
namespace {

class OwnClipboard final : public Clipboard {
 public:
  std::string text() override { return text_; }
  void set_text(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

Clipboard* chosen = nullptr;

}  // namespace

Clipboard& clipboard() {
  static OwnClipboard own;
  return chosen ? *chosen : own;
}

void set_clipboard(Clipboard* clipboard) {
  chosen = clipboard;
}

}  // namespace host::uikit
