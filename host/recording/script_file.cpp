#include "host/recording/script_file.h"

#include <cerrno>
#include <system_error>

#include "host/runtime/log.h"
#include "host/runtime/log_line.h"

namespace host::recording {
namespace {

std::string latest_error() {
  return std::error_code(errno, std::generic_category()).message();
}

}  // namespace

std::optional<ScriptFile> ScriptFile::make(const std::string& path, std::string& problem) {
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file) {
    problem = path + ": " + latest_error();
    return std::nullopt;
  }
  return ScriptFile(path, std::move(file));
}

void ScriptFile::put(const std::string& line) {
  if (!file_) return;
  const std::string bytes = line + "\n";
  const auto count = write(file_.get(), bytes.data(), bytes.size());
  if (count == static_cast<ssize_t>(bytes.size())) return;
  const std::string reason = count < 0 ? latest_error() : "the disk is full";
  spdlog::error("the recording in {} ends early: {}; record once more, to another place",
                on_one_line(path_), reason);
  file_.reset();
}

}  // namespace host::recording
