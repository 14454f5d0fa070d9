#pragma once

/// Before a function that is a loop over many pixels: it is compiled for the wider registers of
/// newer processors, too, and the one that fits is chosen when the program starts.
#if defined(__x86_64__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define SONAVUE_WIDE [[gnu::target_clones("avx2", "default")]]
#else
#define SONAVUE_WIDE
#endif
