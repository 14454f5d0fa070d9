#pragma once

#include "platform/Foundation/NSAttributedString.h"

// Names of the attributes that are drawn.
extern "C" {
/// A UIFont.
extern NSString NSFontAttributeName;
/// A UIColor.
extern NSString NSForegroundColorAttributeName;
/// A UIColor behind the text.
extern NSString NSBackgroundColorAttributeName;
/// A number: points added between characters.
extern NSString NSKernAttributeName;
/// A number; not 0 means a line below the text.
extern NSString NSUnderlineStyleAttributeName;
}
