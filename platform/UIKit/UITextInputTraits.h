#pragma once

#include "platform/Foundation/NSString.h"

// Text input traits: what a responder that takes text requests of the keyboard. Any responder may
// implement the properties of these types by their names.

enum UIKeyboardType : NSInteger {
  UIKeyboardTypeDefault = 0,
  UIKeyboardTypeASCIICapable = 1,
  UIKeyboardTypeNumbersAndPunctuation = 2,
  UIKeyboardTypeURL = 3,
  UIKeyboardTypeNumberPad = 4,
  UIKeyboardTypePhonePad = 5,
  UIKeyboardTypeNamePhonePad = 6,
  UIKeyboardTypeEmailAddress = 7,
  UIKeyboardTypeDecimalPad = 8,
  UIKeyboardTypeTwitter = 9,
  UIKeyboardTypeWebSearch = 10,
};

enum UIKeyboardAppearance : NSInteger {
  UIKeyboardAppearanceDefault = 0,
  UIKeyboardAppearanceDark = 1,
  UIKeyboardAppearanceLight = 2,
};

enum UIReturnKeyType : NSInteger {
  UIReturnKeyDefault = 0,
  UIReturnKeyGo = 1,
  UIReturnKeyGoogle = 2,
  UIReturnKeyJoin = 3,
  UIReturnKeyNext = 4,
  UIReturnKeyRoute = 5,
  UIReturnKeySearch = 6,
  UIReturnKeySend = 7,
  UIReturnKeyYahoo = 8,
  UIReturnKeyDone = 9,
  UIReturnKeyEmergencyCall = 10,
};

enum UITextAutocapitalizationType : NSInteger {
  UITextAutocapitalizationTypeNone = 0,
  UITextAutocapitalizationTypeWords = 1,
  UITextAutocapitalizationTypeSentences = 2,
  UITextAutocapitalizationTypeAllCharacters = 3,
};
