#pragma once

#include <string>

#include "host/property_list/reader.h"
#include "platform/Foundation/NSString.h"

namespace host::test {

/// What was read, in one line.
inline std::string described(const property_list::Reading& reading) {
  return reading.list ? objc::cast<NSObject>(reading.list).description().UTF8String()
                      : "nil, because " + reading.problem;
}

}  // namespace host::test
