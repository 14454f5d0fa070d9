#pragma once

#include <string>
#include <system_error>

#include "host/files/new_file.h"

namespace host::files {

/// Which of the files with the copy's name stay.
enum class Keep { kSameVersion, kEvery };

/// Copies the file with its permissions and its time to `name` in an open folder. A file with the
/// same size and time is the same version. A link with that name is replaced, not followed.
std::error_code copy_file(const std::string& from, int folder, const std::string& name, Keep keep,
                          Durability durability);

/// Opens a folder inside an open folder, and makes it first if it is missing. Fails with
/// `too_many_symbolic_link_levels` where a link is in its place.
Descriptor open_or_make_folder(int parent, const std::string& name, Durability durability,
                               std::error_code& error);

}  // namespace host::files
