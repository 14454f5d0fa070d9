#pragma once

namespace host {

/// Makes the runtime know a protocol of that name. Classes adopt protocols and are asked about them
/// by objects that a compiler makes elsewhere; this one names no methods.
void define_protocol(const char* name);

}  // namespace host
