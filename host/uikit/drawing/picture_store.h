#pragma once

#include <memory>
#include <string>

#include "host/quartzcore/drawing/encoded_image.h"

namespace host::uikit {

/// Returns the picture in a file of this machine, null when there is none. All who load it share
/// one, which is decoded once, as long as somebody has it and for some time longer. A file that has
/// changed is another picture. For any thread.
std::shared_ptr<quartzcore::EncodedImage> picture_of_file(const std::string& path);

}  // namespace host::uikit
