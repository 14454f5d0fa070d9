#pragma once

#include <filesystem>
#include <string>

namespace host::class_headers {

/// Writes a header for each framework of the device and for the home screen's program, made of the
/// classes that they register: `FOLDER/UIKit/UIKit.h` and so on. Loads all of them, so it is for a
/// process that does nothing else. Returns why a file cannot be written; empty when all are.
std::string write_headers(const std::filesystem::path& folder);

}  // namespace host::class_headers
