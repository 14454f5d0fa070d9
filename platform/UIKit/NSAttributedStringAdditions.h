#pragma once

#include "platform/Foundation/NSAttributedString.h"

// Names of the attributes that affect drawing.
extern "C" {
/// A UIFont.
extern NSString NSFontAttributeName;
/// A UIColor.
extern NSString NSForegroundColorAttributeName;
/// A UIColor behind the text.
extern NSString NSBackgroundColorAttributeName;
/// A number: points added between characters.
extern NSString NSKernAttributeName;
/// A number: other than 0, the text is underlined.
extern NSString NSUnderlineStyleAttributeName;
}
