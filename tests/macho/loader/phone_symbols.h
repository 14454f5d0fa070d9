#pragma once

#include <string>

namespace macho_tests {

/// What the desktop has for a symbol that a library of the phone needs: the host's and Foundation's
/// own, the C library's where both systems call it the same way, and a few made here because they
/// do not. Null for everything else, the rest of the C library among it.
void* find_phone_symbol(const std::string& library, const std::string& symbol);

}  // namespace macho_tests
