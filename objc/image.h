#pragma once

namespace objc {

/// Loads the framework or library in the file `path`, with its classes, into the process. A no-op
/// if it is already loaded or the file is missing.
void load_image(const char* path);

}  // namespace objc
