#pragma once

#include <functional>
#include <string_view>

namespace media_tests {

// Called where the libraries begin to read: the tag reader with a file's name, the picture decoder
// with the first bytes of a picture, and the playback engine with a file's name.
void set_reading_hook(std::function<void(std::string_view what)> hook);

}  // namespace media_tests
