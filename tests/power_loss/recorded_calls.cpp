#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include "host/runtime/exported.h"
#include "tests/power_loss/recorder.h"

// The calls of the C library that change files. The whole process binds to these, its libraries
// too.

namespace {

using power_loss::NoUnnamedFiles;
using power_loss::Recorder;

int open_recorded(int folder, const char* path, int flags, mode_t mode) {
  const bool is_unnamed = (flags & O_TMPFILE) == O_TMPFILE;
  if (is_unnamed && NoUnnamedFiles::is_active()) {
    errno = EOPNOTSUPP;
    return -1;
  }
  Recorder* const recorder = Recorder::current();
  struct stat status {};
  const bool is_new =
      recorder && (is_unnamed || ((flags & O_CREAT) != 0 &&
                                  fstatat(folder, path, &status, AT_SYMLINK_NOFOLLOW) != 0));
  const auto file = static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
  if (!recorder || file < 0) return file;
  const int error = errno;
  const std::string name = is_unnamed ? std::string() : recorder->name_of(folder, path);
  if (is_new && (is_unnamed || !name.empty())) recorder->made(file, name);
  if (!is_new && (flags & O_TRUNC) != 0) recorder->truncated(file, 0);
  errno = error;
  return file;
}

/// Reports what a call has done when it has succeeded.
template <class Result, class Report>
Result recorded(Result result, Report report) {
  if (Recorder* const recorder = Recorder::current(); recorder && result >= 0) {
    const int error = errno;
    report(*recorder);
    errno = error;
  }
  return result;
}

int rename_recorded(int folder, const char* from, int new_folder, const char* to, unsigned flags) {
  Recorder* const recorder = Recorder::current();
  const std::string name = recorder ? recorder->name_of(folder, from) : std::string();
  const auto result = static_cast<int>(syscall(SYS_renameat2, folder, from, new_folder, to, flags));
  return recorded(
      result, [&](Recorder& to_tell) { to_tell.renamed(name, to_tell.name_of(new_folder, to)); });
}

int link_recorded(int folder, const char* from, int new_folder, const char* to, int flags) {
  const auto result = static_cast<int>(syscall(SYS_linkat, folder, from, new_folder, to, flags));
  return recorded(result, [&](Recorder& recorder) {
    recorder.named(recorder.file_at(new_folder, to, AT_SYMLINK_NOFOLLOW),
                   recorder.name_of(new_folder, to));
  });
}

int unlink_recorded(int folder, const char* path, int flags) {
  const auto result = static_cast<int>(syscall(SYS_unlinkat, folder, path, flags));
  return recorded(result,
                  [&](Recorder& recorder) { recorder.unnamed(recorder.name_of(folder, path)); });
}

ssize_t write_recorded(int file, const void* bytes, size_t size, off_t offset) {
  const auto result = syscall(SYS_pwrite64, file, bytes, size, offset);
  return recorded(result, [&](Recorder& recorder) {
    recorder.written(file, static_cast<std::uint64_t>(offset),
                     {static_cast<const char*>(bytes), static_cast<std::size_t>(result)});
  });
}

int truncate_recorded(int file, off_t size) {
  const auto result = static_cast<int>(syscall(SYS_ftruncate, file, size));
  return recorded(result, [&](Recorder& recorder) {
    recorder.truncated(file, static_cast<std::uint64_t>(size));
  });
}

/// The disk is a model here: waiting for the real one would only take time.
int flush_recorded(int file) {
  return recorded(fcntl(file, F_GETFD) < 0 ? -1 : 0,
                  [&](Recorder& recorder) { recorder.flushed(file); });
}

mode_t mode_in(va_list arguments, int flags) {
  const bool has_mode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
  return has_mode ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

#define OPEN(folder, path)                       \
  va_list arguments;                             \
  va_start(arguments, flags);                    \
  const mode_t mode = mode_in(arguments, flags); \
  va_end(arguments);                             \
  return open_recorded(folder, path, flags, mode)

SONAVUE_EXPORTED int open(const char* path, int flags, ...) {
  OPEN(AT_FDCWD, path);
}
SONAVUE_EXPORTED int open64(const char* path, int flags, ...) {
  OPEN(AT_FDCWD, path);
}
SONAVUE_EXPORTED int openat(int folder, const char* path, int flags, ...) {
  OPEN(folder, path);
}
SONAVUE_EXPORTED int openat64(int folder, const char* path, int flags, ...) {
  OPEN(folder, path);
}

SONAVUE_EXPORTED ssize_t write(int file, const void* bytes, size_t size) {
  const off_t offset = Recorder::current() ? lseek(file, 0, SEEK_CUR) : 0;
  const auto result = syscall(SYS_write, file, bytes, size);
  return recorded(result, [&](Recorder& recorder) {
    recorder.written(file, static_cast<std::uint64_t>(offset),
                     {static_cast<const char*>(bytes), static_cast<std::size_t>(result)});
  });
}
SONAVUE_EXPORTED ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  return write_recorded(file, bytes, size, offset);
}
SONAVUE_EXPORTED ssize_t pwrite64(int file, const void* bytes, size_t size, off_t offset) {
  return write_recorded(file, bytes, size, offset);
}
SONAVUE_EXPORTED int ftruncate(int file, off_t size) noexcept {
  return truncate_recorded(file, size);
}
SONAVUE_EXPORTED int ftruncate64(int file, off_t size) noexcept {
  return truncate_recorded(file, size);
}
SONAVUE_EXPORTED int fsync(int file) {
  return flush_recorded(file);
}
SONAVUE_EXPORTED int fdatasync(int file) {
  return flush_recorded(file);
}

SONAVUE_EXPORTED int rename(const char* from, const char* to) noexcept {
  return rename_recorded(AT_FDCWD, from, AT_FDCWD, to, 0);
}
SONAVUE_EXPORTED int renameat(int folder, const char* from, int new_folder,
                              const char* to) noexcept {
  return rename_recorded(folder, from, new_folder, to, 0);
}
SONAVUE_EXPORTED int renameat2(int folder, const char* from, int new_folder, const char* to,
                               unsigned flags) noexcept {
  return rename_recorded(folder, from, new_folder, to, flags);
}
SONAVUE_EXPORTED int link(const char* from, const char* to) noexcept {
  return link_recorded(AT_FDCWD, from, AT_FDCWD, to, 0);
}
SONAVUE_EXPORTED int linkat(int folder, const char* from, int new_folder, const char* to,
                            int flags) noexcept {
  return link_recorded(folder, from, new_folder, to, flags);
}
SONAVUE_EXPORTED int unlink(const char* path) noexcept {
  return unlink_recorded(AT_FDCWD, path, 0);
}
SONAVUE_EXPORTED int unlinkat(int folder, const char* path, int flags) noexcept {
  return unlink_recorded(folder, path, flags);
}
