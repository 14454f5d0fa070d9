#pragma once

#include "host/media/reading_marks.h"

namespace host::media {

// What the phone does with such a file.
void read_for_trial(Reading reading, const std::string& path);

}  // namespace host::media
