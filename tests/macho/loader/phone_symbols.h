#pragma once

#include <string>

namespace macho_tests {

/// The desktop's counterpart of a symbol that a library for the phone needs: those of the host and
/// of Foundation, those of the C library that both systems call the same way, and a few made here
/// because they do not. Null for everything else, including the rest of the C library.
void* find_phone_symbol(const std::string& library, const std::string& symbol);

}  // namespace macho_tests
