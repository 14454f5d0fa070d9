#pragma once

namespace objc {

/// Brings a framework or library of the device into the process, with the classes that it has:
/// `path` is that of its file. Nothing happens where it is loaded already, or where there is none.
void load_image(const char* path);

}  // namespace objc
