#pragma once

#include "objc/abi.h"

/// What the system says of itself. Declared here since its layout is the home's, not that of the
/// machine that compiles.
struct SystemName {
  char sysname[kSystemNameLength];
  char nodename[kSystemNameLength];
  char release[kSystemNameLength];
  char version[kSystemNameLength];
  char machine[kSystemNameLength];
  char domain[kSystemNameLength];  // Unused, and beyond the end of what a phone writes.
};

extern "C" int uname(SystemName* name);
