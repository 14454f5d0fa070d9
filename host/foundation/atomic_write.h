#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace host::foundation {

/// Replaces the file as `files::replace_file` does. A file that could not be read is one line in
/// the log, and so is a failure, until there is another or the file is written.
std::error_code write_atomically(const std::string& path, std::string_view bytes);

/// Tells the writer how the last attempt to read the file ended: what could not be read is kept
/// when the file is replaced.
void note_reading(const std::string& path, const std::error_code& error);

}  // namespace host::foundation
