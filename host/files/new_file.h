#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <system_error>

#include "host/basics/descriptor.h"

namespace host::files {

/// Whether a file must survive a power failure, or will be deleted with its device anyway.
enum class Durability { kFlushed, kUnflushed };

/// A file that others see only when it is complete. It has no name until then and disappears with
/// its process; where the file system requires a name, it has one that no other writer uses.
class NewFile {
 public:
  /// `folder` is an open folder, which must outlive this object.
  NewFile(int folder, mode_t mode, Durability durability = Durability::kFlushed);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Why there is no file.
  const std::error_code& error() const { return error_; }
  int descriptor() const { return file_.get(); }
  std::error_code write(std::string_view bytes) const;

  /// Both return when the file and its name are on the disk.
  std::error_code replace(const std::string& name);
  /// Fails with `file_exists` where another file has the name.
  std::error_code take_free_name(const std::string& name);

 private:
  std::error_code flush() const;
  std::error_code link_to(const std::string& name) const;
  std::error_code stage(const std::string& staged) const;
  std::error_code move_to(const std::string& name);
  void flush_name() const;

  int folder_;
  Durability durability_;
  Descriptor file_;
  std::string own_name_;  // empty for an unnamed file
  std::error_code error_;
};

/// The name that an unnamed file has for a moment before it replaces another. A writer that is
/// killed in this moment leaves it behind, and the next writer of the same file removes it.
std::string staged_name(std::string_view name);

}  // namespace host::files
