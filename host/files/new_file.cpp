#include "host/files/new_file.h"

#include <fcntl.h>
#include <sys/random.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>

#include "host/files/folder.h"

namespace host::files {
namespace {

// Other writers of the same file may repeatedly take the name between our steps.
constexpr int kMostAttempts = 1000;

std::string random_name() {
  std::array<std::uint32_t, 4> words{};
  [[maybe_unused]] const ssize_t filled = getrandom(words.data(), sizeof words, 0);
  std::string name = ".new-";
  for (const std::uint32_t word : words) {
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", word);
    name += digits.data();
  }
  return name;
}

/// Whether the error says that the file system does not have unnamed files.
bool requires_name(int error) {
  return error == EOPNOTSUPP || error == EISDIR || error == EINVAL;
}

std::error_code error_unless(bool succeeded) {
  return succeeded ? std::error_code() : last_error();
}

}  // namespace

std::string staged_name(std::string_view name) {
  return "." + std::string(name) + ".staged";
}

NewFile::NewFile(int folder, mode_t mode, Durability durability)
    : folder_(folder),
      durability_(durability),
      file_(openat(folder, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, mode)) {
  if (!file_ && requires_name(errno)) {
    own_name_ = random_name();
    file_ = Descriptor(openat(folder, own_name_.c_str(),
                              O_CREAT | O_EXCL | O_NOFOLLOW | O_WRONLY | O_CLOEXEC, mode));
  }
  if (file_) return;
  error_ = last_error();
  own_name_.clear();
}

NewFile::~NewFile() {
  if (!own_name_.empty()) unlinkat(folder_, own_name_.c_str(), 0);
}

std::error_code NewFile::write(std::string_view bytes) const {
  if (error_) return error_;
  while (!bytes.empty()) {
    const ssize_t count = ::write(file_.get(), bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return last_error();
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

// Otherwise the file system may keep the name and lose the contents in a power failure.
std::error_code NewFile::flush() const {
  if (error_ || durability_ == Durability::kUnflushed) return error_;
  return error_unless(fsync(file_.get()) == 0);
}

void NewFile::flush_name() const {
  if (durability_ == Durability::kFlushed) flush_folder(folder_);
}

std::error_code NewFile::link_to(const std::string& name) const {
  const std::string open_file = "/proc/self/fd/" + std::to_string(file_.get());
  return error_unless(
      linkat(AT_FDCWD, open_file.c_str(), folder_, name.c_str(), AT_SYMLINK_FOLLOW) == 0);
}

std::error_code NewFile::stage(const std::string& staged) const {
  std::error_code error;
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    error = link_to(staged);
    if (error != std::errc::file_exists) return error;
    if (unlinkat(folder_, staged.c_str(), 0) != 0 && errno != ENOENT) return last_error();
  }
  return error;
}

std::error_code NewFile::move_to(const std::string& name) {
  if (!own_name_.empty()) {
    const auto error =
        error_unless(renameat(folder_, own_name_.c_str(), folder_, name.c_str()) == 0);
    if (!error) own_name_.clear();
    return error;
  }
  const std::string staged = staged_name(name);
  if (const auto error = stage(staged)) return error;
  // A writer that finds the staged name taken removes it. Our file then counts as written and
  // immediately replaced.
  if (renameat(folder_, staged.c_str(), folder_, name.c_str()) == 0 || errno == ENOENT) return {};
  const auto error = last_error();
  unlinkat(folder_, staged.c_str(), 0);
  return error;
}

std::error_code NewFile::replace(const std::string& name) {
  if (const auto error = flush()) return error;
  if (const auto error = move_to(name)) return error;
  flush_name();
  return {};
}

std::error_code NewFile::take_free_name(const std::string& name) {
  if (const auto error = flush()) return error;
  const bool is_renamed = !own_name_.empty() && renameat2(folder_, own_name_.c_str(), folder_,
                                                          name.c_str(), RENAME_NOREPLACE) == 0;
  if (is_renamed) {
    own_name_.clear();
  } else if (const auto error = link_to(name)) {
    return error;
  }
  flush_name();
  return {};
}

}  // namespace host::files
