#pragma once

#include "objc/abi.h"

enum NSTextAlignment : NSInteger {
  NSTextAlignmentLeft = 0,
  NSTextAlignmentCenter = 1,
  NSTextAlignmentRight = 2,
  NSTextAlignmentJustified = 3,
  /// Follows the direction of the text.
  NSTextAlignmentNatural = 4,
};

enum NSLineBreakMode : NSInteger {
  NSLineBreakByWordWrapping = 0,
  NSLineBreakByCharWrapping = 1,
  NSLineBreakByClipping = 2,
  NSLineBreakByTruncatingHead = 3,
  NSLineBreakByTruncatingTail = 4,
  NSLineBreakByTruncatingMiddle = 5,
};
