#pragma once

/// Put before a function that loops over many pixels: also compiles it for the wider registers of
/// newer processors. The suitable version is chosen when the program starts.
#if defined(__x86_64__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define SONAVUE_WIDE [[gnu::target_clones("avx2", "default")]]
#else
#define SONAVUE_WIDE
#endif
