#include "host/uikit/text/key_input.h"

#include <string>

#include "host/uikit/text_layout/characters.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UITextField.h"

namespace host::uikit {
namespace {

/// The first responder, if it takes text; the binding serves every class that does.
UITextField text_taker() {
  const UIResponder responder = first_responder();
  if (!responder.respondsToSelector("insertText:"_sel)) return nil;
  return objc::cast<UITextField>(responder);
}

void (*typing_observer)() = nullptr;

bool taken() {
  if (typing_observer) typing_observer();
  return true;
}

NSString text_of(std::string_view name) {
  return NSString::stringWithUTF8String(std::string(name).c_str());
}

}  // namespace

bool type_text(NSString text) {
  for (NSUInteger at = 0; at < text.length();) {
    // Asked for anew each time: a return may have sent the first responder away.
    const UITextField taker = text_taker();
    if (!taker) return false;
    const NSUInteger end = character_end(text, at);
    taker.insertText(text.substringWithRange({at, end - at}));
    at = end;
  }
  return taken();
}

bool compose_text(NSString text, NSUInteger caret) {
  const UITextField taker = text_taker();
  if (!taker.respondsToSelector("setMarkedText:selectedRange:"_sel)) return false;
  taker.setMarkedText(text, {caret, 0});
  return taken();
}

bool press_key(std::string_view name) {
  const UITextField taker = text_taker();
  if (!taker) return false;
  if (name == "return") {
    taker.insertText("\n"_ns);
  } else if (name == "backspace") {
    taker.deleteBackward();
  } else if (name == "escape") {
    taker.resignFirstResponder();
  } else if (taker.respondsToSelector("_pressKey:"_sel)) {
    return objc::send<BOOL>(taker, "_pressKey:"_sel, text_of(name)) && taken();
  } else {
    return false;
  }
  return taken();
}

void observe_typing(void (*observer)()) {
  typing_observer = observer;
}

}  // namespace host::uikit
