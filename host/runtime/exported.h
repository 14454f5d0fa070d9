#pragma once

/// Marks what a loaded library may bind to in the executable.
#define SONAVUE_EXPORTED extern "C" __attribute__((visibility("default"), used))
