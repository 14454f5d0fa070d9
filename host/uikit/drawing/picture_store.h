#pragma once

#include <memory>
#include <string>

#include "host/quartzcore/drawing/encoded_image.h"

namespace host::uikit {

/// Returns the picture in a file of this machine, null if the file is no picture. Callers share one
/// picture per unchanged file; it is decoded once and kept while in use, small ones also for some
/// time afterwards. Thread-safe.
std::shared_ptr<quartzcore::EncodedImage> picture_of_file(const std::string& path);

}  // namespace host::uikit
