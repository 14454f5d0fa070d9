#include "host/uikit/keyboard_layout/keyboard_traits.h"

namespace host::uikit {
namespace {

template <class Trait>
void ask(UIResponder taker, objc::Sel question, Trait& trait) {
  if (taker.respondsToSelector(question)) trait = objc::send<Trait>(taker, question);
}

}  // namespace

KeyboardTraits traits_of(UIResponder taker) {
  KeyboardTraits traits;
  ask(taker, "keyboardType"_sel, traits.type);
  ask(taker, "keyboardAppearance"_sel, traits.appearance);
  ask(taker, "returnKeyType"_sel, traits.return_key);
  ask(taker, "autocapitalizationType"_sel, traits.autocapitalization);
  return traits;
}

bool takes_text(UIResponder responder) {
  return responder && responder.respondsToSelector("insertText:"_sel);
}

}  // namespace host::uikit
