#include "host/uikit/text/key_input.h"

#include <string>

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/text_layout/characters.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UITextField.h"

namespace host::uikit {
namespace {

/// Returns the first responder if it takes text; the binding fits every class that does.
UITextField text_responder() {
  const UIResponder responder = first_responder();
  if (!responder.respondsToSelector("insertText:"_sel)) return nil;
  return objc::cast<UITextField>(responder);
}

void (*typing_observer)() = nullptr;

bool report_typing() {
  if (typing_observer) typing_observer();
  return true;
}

NSString text_of(std::string_view name) {
  return NSString::stringWithUTF8String(std::string(name).c_str());
}

}  // namespace

bool type_text(NSString text) {
  for (NSUInteger at = 0; at < text.length();) {
    // Looked up for each character: a return may have made the first responder resign.
    const UITextField taker = text_responder();
    if (!taker) return false;
    const NSUInteger end = character_end(text, at);
    taker.insertText(text.substringWithRange({at, end - at}));
    at = end;
  }
  return report_typing();
}

bool compose_text(NSString text, NSUInteger caret) {
  const UITextField taker = text_responder();
  if (!taker.respondsToSelector("setMarkedText:selectedRange:"_sel)) return false;
  taker.setMarkedText(text, {caret, 0});
  return report_typing();
}

bool press_key(std::string_view name) {
  const UITextField taker = text_responder();
  if (!taker) return false;
  if (name == "return") {
    taker.insertText("\n"_ns);
  } else if (name == "backspace") {
    taker.deleteBackward();
  } else if (name == "escape") {
    taker.resignFirstResponder();
  } else if (taker.respondsToSelector("_pressKey:"_sel)) {
    return objc::send<BOOL>(taker, "_pressKey:"_sel, text_of(name)) && report_typing();
  } else {
    return false;
  }
  return report_typing();
}

std::optional<CGRect> caret_on_screen() {
  const UITextField taker = text_responder();
  if (!taker) return std::nullopt;
  if (!taker.isKindOfClass(UIView::cls())) return CGRect();
  const bool has_caret = taker.respondsToSelector("_caretFrame"_sel);
  const CGRect frame = has_caret ? objc::send<CGRect>(taker, "_caretFrame"_sel) : CGRect();
  return convert_rect(taker, frame == CGRect() ? taker.bounds() : frame, nil);
}

void observe_typing(void (*observer)()) {
  typing_observer = observer;
}

}  // namespace host::uikit
