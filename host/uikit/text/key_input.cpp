#include "host/uikit/text/key_input.h"

#include <algorithm>
#include <array>

#include "host/uikit/text/characters.h"
#include "host/uikit/text/text_field.h"
#include "host/uikit/view/responder.h"

namespace host::uikit {
namespace {

/// The first responder, if it takes text; the binding serves every class that does.
UITextField text_taker() {
  const UIResponder responder = first_responder();
  if (!responder.respondsToSelector("insertText:"_sel)) return nil;
  return objc::cast<UITextField>(responder);
}

struct CaretKey {
  std::string_view name;
  TextField::Motion motion;
};
constexpr std::array kCaretKeys{
    CaretKey{"left", TextField::Motion::ToPrevious}, CaretKey{"right", TextField::Motion::ToNext},
    CaretKey{"home", TextField::Motion::ToStart}, CaretKey{"end", TextField::Motion::ToEnd}};

bool press_caret_key(UITextField taker, std::string_view name) {
  const auto key = std::find_if(kCaretKeys.begin(), kCaretKeys.end(),
                                [&](const CaretKey& known) { return known.name == name; });
  if (key == kCaretKeys.end() || !taker.isKindOfClass(UITextField::cls())) return false;
  objc::state_of<TextField>(taker).move_caret(key->motion);
  return true;
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
  return true;
}

bool compose_text(NSString text, NSUInteger caret) {
  const UITextField taker = text_taker();
  if (!taker.respondsToSelector("setMarkedText:selectedRange:"_sel)) return false;
  taker.setMarkedText(text, {caret, 0});
  return true;
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
  } else {
    return press_caret_key(taker, name);
  }
  return true;
}

}  // namespace host::uikit
