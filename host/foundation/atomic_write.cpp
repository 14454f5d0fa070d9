#include "host/foundation/atomic_write.h"

#include <map>
#include <mutex>

#include "host/basics/user_warning.h"
#include "host/files/read_file.h"
#include "host/files/replace_file.h"
#include "host/runtime/log.h"

namespace host::foundation {
namespace {

/// Files by their path, with the last error.
class Errors {
 public:
  /// Returns whether this differs from what was known. Success is what is known of every other
  /// file.
  bool note(const std::string& path, const std::error_code& error) {
    const std::lock_guard lock(mutex_);
    const auto known = errors_.find(path);
    if (known == errors_.end() ? !error : known->second == error) return false;
    if (error) {
      errors_[path] = error;
    } else {
      errors_.erase(known);
    }
    return true;
  }
  std::error_code of(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto known = errors_.find(path);
    return known == errors_.end() ? std::error_code() : known->second;
  }

 private:
  mutable std::mutex mutex_;
  std::map<std::string, std::error_code> errors_;
};

// Never destroyed: other threads may write until the process ends.
Errors& errors_of_reading() {
  static auto* const errors = new Errors;
  return *errors;
}

Errors& errors_of_writing() {
  static auto* const errors = new Errors;
  return *errors;
}

/// Without its folder, or with something else in its place, the disk is not what is wrong.
void report(const std::string& path, const std::error_code& error) {
  spdlog::error("{} cannot be written: {}", path, error.message());
  if (!files::is_missing(error) && !files::is_no_file(error)) warn_user(kDiskWarning);
}

void log_replacement(const std::string& path, const files::Replacement& done) {
  if (done.kept.empty()) {
    spdlog::warn("{} could not be read ({}) and is replaced", path, done.unread.message());
  } else {
    spdlog::warn("{} could not be read ({}) and is replaced; the old file is {}", path,
                 done.unread.message(), done.kept);
  }
}

}  // namespace

std::error_code write_atomically(const std::string& path, std::string_view bytes) {
  const auto done = files::replace_file(path, bytes, errors_of_reading().of(path));
  const bool is_news = errors_of_writing().note(path, done.error);
  if (done.error) {
    if (is_news) report(path, done.error);
    return done.error;
  }
  if (done.unread) log_replacement(path, done);
  errors_of_reading().note(path, {});
  return {};
}

void note_reading(const std::string& path, const std::error_code& error) {
  errors_of_reading().note(path, error);
}

}  // namespace host::foundation
