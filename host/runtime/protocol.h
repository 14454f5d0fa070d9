#pragma once

namespace host {

/// Registers a protocol with this name, without methods. Usually the compiler generates such
/// objects, for classes to adopt and to be queried about.
void define_protocol(const char* name);

}  // namespace host
