#include "host/uikit/keyboard/sentence.h"

namespace host::uikit {
namespace {

bool is_space(unichar unit) {
  return unit == ' ' || unit == 0xA0;
}

bool ends_sentence(unichar unit) {
  return unit == '.' || unit == '!' || unit == '?';
}

/// Returns the text's length without trailing spaces.
NSUInteger length_without_spaces(NSString text) {
  NSUInteger length = text.length();
  while (length > 0 && is_space(text.characterAtIndex(length - 1)))
    --length;
  return length;
}

}  // namespace

bool capital_is_due(NSString before, UITextAutocapitalizationType type) {
  if (type == UITextAutocapitalizationTypeAllCharacters) return true;
  if (type == UITextAutocapitalizationTypeNone) return false;
  const NSUInteger length = length_without_spaces(before);
  if (length == 0 || before.characterAtIndex(length - 1) == '\n') return true;
  if (length == before.length()) return false;
  return type == UITextAutocapitalizationTypeWords ||
         ends_sentence(before.characterAtIndex(length - 1));
}

}  // namespace host::uikit
