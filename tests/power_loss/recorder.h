#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace power_loss {

/// One change that the process has asked the system for. Names are relative to the recorded folder.
struct Operation {
  enum class Kind { kMake, kWrite, kTruncate, kFlush, kName, kRename, kUnname, kFlushFolder };

  Kind kind;
  int file = 0;  // the number of the contents; several names may stand for one
  std::uint64_t offset = 0;
  std::string bytes;
  std::string name;
  std::string new_name;
};

/// The contents by their number, and the names.
struct Snapshot {
  std::map<int, std::string> contents;
  std::map<std::string, int> names;
};

/// Records all operations on the files below a folder that this process performs while it lives.
/// There is one at a time.
class Recorder {
 public:
  explicit Recorder(const std::filesystem::path& folder);
  ~Recorder();
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// Null while nothing is recorded.
  static Recorder* current();

  const Snapshot& before() const { return before_; }
  const std::vector<Operation>& operations() const { return operations_; }

  // What the calls report after they have succeeded. Other files are ignored.
  void made(int descriptor, const std::string& name);
  void written(int descriptor, std::uint64_t offset, std::string_view bytes);
  void truncated(int descriptor, std::uint64_t size);
  void flushed(int descriptor);
  void named(int file, const std::string& name);
  void renamed(const std::string& name, const std::string& new_name);
  void unnamed(const std::string& name);

  /// The contents that a path stands for; 0 when there are none.
  int file_at(int folder, const char* path, int flags) const;
  /// Empty for names outside the folder.
  std::string name_of(int folder, const char* path) const;

 private:
  using Identity = std::pair<dev_t, ino_t>;

  int file_of(int descriptor) const;
  void add(Operation operation);

  std::filesystem::path folder_;
  std::map<Identity, int> files_;
  int last_file_ = 0;
  Snapshot before_;
  std::vector<Operation> operations_;
};

/// While an instance lives, the process gets no unnamed files, as on many file systems.
class NoUnnamedFiles {
 public:
  NoUnnamedFiles();
  ~NoUnnamedFiles();
  NoUnnamedFiles(const NoUnnamedFiles&) = delete;
  NoUnnamedFiles& operator=(const NoUnnamedFiles&) = delete;

  static bool is_active();
};

/// What the files below a folder hold, numbered from 1.
Snapshot snapshot_of(const std::filesystem::path& folder);

}  // namespace power_loss
