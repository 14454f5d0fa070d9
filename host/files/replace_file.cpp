#include "host/files/replace_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "host/files/aside.h"
#include "host/files/folder.h"
#include "host/files/links.h"
#include "host/files/new_file.h"
#include "host/files/read_file.h"

namespace host::files {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kPermissions = 07777;

/// The file that is to be replaced.
struct OldFile {
  bool exists = false;
  mode_t mode = kNewFileMode;
  std::error_code error;   // why it must not be replaced
  std::error_code unread;  // why it cannot be read
};

OldFile look_at(const std::string& path, const std::error_code& unread) {
  OldFile old;
  struct stat status {};
  old.exists = stat(path.c_str(), &status) == 0;
  if (!old.exists) {
    if (errno != ENOENT) old.error = last_error();
    return old;
  }
  old.mode = status.st_mode & kPermissions;
  old.unread = error_of_reading(path);
  if (!S_ISREG(status.st_mode) || is_shortage(old.unread)) {
    old.error = old.unread;
  } else if (old.unread) {
    old.mode |= S_IRUSR | S_IWUSR;
  } else {
    old.unread = unread;
  }
  return old;
}

std::error_code fill(const NewFile& file, const OldFile& old, std::string_view bytes) {
  if (file.error()) return file.error();
  // A new file gets the mode that the process gives to all its files.
  if (old.exists && fchmod(file.descriptor(), old.mode) != 0) return last_error();
  return file.write(bytes);
}

}  // namespace

Replacement replace_file(const std::string& path, std::string_view bytes,
                         const std::error_code& unread) {
  std::string place = path;
  if (const auto error = follow_links(place)) return {error, {}, {}};
  const OldFile old = look_at(place, unread);
  if (old.error) return {old.error, {}, {}};
  std::error_code error;
  const Descriptor folder = open_folder(folder_of(place), error);
  if (error) return {error, {}, {}};
  NewFile file(folder.get(), old.mode);
  error = fill(file, old, bytes);
  if (error) return {error, {}, {}};
  const Aside kept = old.unread ? keep_beside(place, "unreadable") : Aside();
  error = file.replace(name_of(place));
  if (error) put_back(kept, place);
  return {error, old.unread, kept.path};
}

}  // namespace host::files
