#pragma once

#include "objc/encoding.h"

namespace objc {

// A message of the platform as one string. A variable that takes it as a template argument carries
// it in its symbol, where the checker of the finished library reads it.

/// "-[UILabel setText:]".
template <FixedString Class, FixedString Selector, bool OfClass>
inline constexpr auto message_name = FixedString(OfClass ? "+[" : "-[") + Class +
                                     FixedString(" ") + Selector + FixedString("]");

/// "-[UILabel setText:] v@:@".
template <FixedString Class, FixedString Selector, bool OfClass, class Result, class... Arguments>
inline constexpr auto message_text = message_name<Class, Selector, OfClass> +
                                     FixedString(" ") + MethodEncoding<Result, Arguments...>::text;

}  // namespace objc
