#pragma once

#include "objc/abi.h"

/// The struct that `uname` fills in. It is declared here because its layout is the target's, not
/// that of the machine that compiles.
struct SystemName {
  char sysname[kSystemNameLength];
  char nodename[kSystemNameLength];
  char release[kSystemNameLength];
  char version[kSystemNameLength];
  char machine[kSystemNameLength];
  char domain[kSystemNameLength];  // Unused. A phone's `uname` does not write this far.
};

extern "C" int uname(SystemName* name);
