#pragma once

#include <cstdint>
#include <string>

namespace host::media {

// Asks the system to bring the ends of a file, where tags are, into its cache, and does not wait
// for them: a disk answers many requests in the time of a few. Whatever fails shows when the file
// is read.
void fetch_ahead(const std::string& path, std::int64_t size);

}  // namespace host::media
