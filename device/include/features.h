#pragma once

// The compiler's C++ headers first test for features of the desktop's C library. The phone has a
// different C library with none of them.
#define __GLIBC_PREREQ(major, minor) 0
