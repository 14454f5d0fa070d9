#pragma once

/// Marks a function or variable in the executable that loaded libraries may bind to.
#define SONAVUE_EXPORTED extern "C" __attribute__((visibility("default"), used))
