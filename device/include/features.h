#pragma once

// The compiler's C++ headers ask for the features of the desktop's C library before anything else.
// The phone's library is another one, which has none of them.
#define __GLIBC_PREREQ(major, minor) 0
