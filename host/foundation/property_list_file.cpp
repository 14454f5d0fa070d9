#include "host/foundation/property_list_file.h"

#include <sys/stat.h>

#include <cerrno>

#include "host/files/aside.h"
#include "host/files/folder.h"
#include "host/files/links.h"
#include "host/files/read_file.h"
#include "host/foundation/device_paths.h"
#include "host/property_list/reader.h"
#include "host/runtime/log.h"

namespace host::foundation {

std::optional<files::Stamp> PropertyListFile::stamp() const {
  struct stat found {};
  if (::stat(path_on_this_machine(path_).c_str(), &found) == 0) return files::stamp_of(found);
  return files::is_missing(files::last_error()) ? std::nullopt : std::optional(files::Stamp());
}

NSDictionary PropertyListFile::read() {
  const files::FileContents contents = files::read_file(path_on_this_machine(path_));
  const bool was_unread = is_unread();
  const bool is_known = files::is_missing(contents.error) || files::is_no_file(contents.error);
  unread_ = is_known ? std::error_code() : contents.error;
  if (is_unread() && !was_unread)
    spdlog::error("{} cannot be read: {}; it stays as it is", path_, unread_.message());
  if (is_unread() || files::is_missing(contents.error)) return nil;
  const auto list =
      contents.error ? nil : objc::cast<NSDictionary>(property_list::read(contents.bytes).list);
  if (list.isKindOfClass(NSDictionary::cls())) return list;
  set_aside();
  return nil;
}

bool PropertyListFile::write(NSDictionary list) const {
  if (is_unread()) return false;
  // If this fails, so does writing, which says why.
  files::make_folders(files::folder_of(path_on_this_machine(path_)));
  return list.writeToFile(NSString::stringWithUTF8String(path_.c_str()), YES) != NO;
}

void PropertyListFile::set_aside() const {
  std::string place = path_on_this_machine(path_);
  files::follow_links(place);
  const files::Aside aside = files::set_aside(place, "damaged");
  if (aside.error) {
    spdlog::error("{} is damaged and is not used: {}", path_, aside.error.message());
  } else {
    spdlog::error("{} is damaged: it is kept as {}", path_, files::name_of(aside.path));
  }
}

}  // namespace host::foundation
