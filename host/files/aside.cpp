#include "host/files/aside.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "host/files/folder.h"

namespace host::files {
namespace {

constexpr int kMostNames = 1000;

/// `take` returns whether it has given the file this name, and sets `errno`.
template <class Take>
Aside take_free_name(const std::string& path, std::string_view suffix, Take take) {
  const std::string first = path + "." + std::string(suffix);
  std::string name = first;
  for (int number = 2; !take(name); ++number) {
    if (errno != EEXIST || number > kMostNames) return {{}, last_error()};
    name = first + "-" + std::to_string(number);
  }
  std::error_code ignored;
  if (const Descriptor folder = open_folder(folder_of(path), ignored)) flush_folder(folder.get());
  return {name, {}};
}

bool move_to_free(const std::string& path, const std::string& name) {
  if (renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0) return true;
  // Some file systems can only replace.
  if (errno != EINVAL) return false;
  if (faccessat(AT_FDCWD, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
    errno = EEXIST;
    return false;
  }
  return rename(path.c_str(), name.c_str()) == 0;
}

}  // namespace

Aside set_aside(const std::string& path, std::string_view suffix) {
  return take_free_name(path, suffix,
                        [&](const std::string& name) { return move_to_free(path, name); });
}

Aside keep_beside(const std::string& path, std::string_view suffix) {
  const Aside linked = take_free_name(
      path, suffix, [&](const std::string& name) { return link(path.c_str(), name.c_str()) == 0; });
  return linked.error ? set_aside(path, suffix) : linked;
}

void put_back(const Aside& aside, const std::string& path) {
  if (aside.path.empty() || move_to_free(aside.path, path)) return;
  if (errno == EEXIST) unlink(aside.path.c_str());
}

}  // namespace host::files
