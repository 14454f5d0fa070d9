#include "host/foundation/property_list_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>

#include "host/basics/descriptor.h"
#include "host/files/folder.h"
#include "host/files/read_file.h"
#include "host/foundation/atomic_write.h"
#include "host/property_list/reader.h"
#include "host/runtime/log.h"
#include "objc/ref.h"

namespace host::foundation {
namespace {

constexpr std::size_t kMostFiles = 256;
// Together, in bytes: lists take memory in proportion to their files.
constexpr std::size_t kMostBytes = property_list::kLargestList;
// In seconds. A stamp is as coarse as the file system's clock: a file that has only just changed
// may change again under the same one.
constexpr std::time_t kSettlingTime = 2;

struct Stamp {
  dev_t device = 0;
  ino_t file = 0;
  off_t size = 0;
  timespec modified{};
  timespec changed{};

  bool operator==(const Stamp& other) const {
    const auto same = [](const timespec& left, const timespec& right) {
      return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
    };
    return device == other.device && file == other.file && size == other.size &&
           same(modified, other.modified) && same(changed, other.changed);
  }
};

struct KnownFile {
  Stamp stamp;
  bool is_settled = false;
  bool is_parsed = false;
  std::size_t hash = 0;
  objc::Ref<objc::Object> list;
  std::string problem;
};

/// A file whose bytes can be read; otherwise the reason why they cannot, if it exists.
struct OpenFile {
  Descriptor descriptor;
  Stamp stamp;
  std::string problem;
  /// Why it could not be opened, if nothing is wrong with the file.
  std::error_code shortage;
};

OpenFile unreadable(std::string problem) {
  return {Descriptor(), {}, std::move(problem), {}};
}

OpenFile not_opened(const std::error_code& error) {
  const bool is_missing =
      error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
  return {Descriptor(),
          {},
          is_missing ? "" : error.message(),
          files::is_shortage(error) ? error : std::error_code()};
}

OpenFile open_file(const char* path) {
  // Does not wait for the other end of what is no file.
  Descriptor descriptor(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!descriptor || fstat(descriptor.get(), &status) != 0) return not_opened(files::last_error());
  if (S_ISDIR(status.st_mode)) return unreadable("it is a folder");
  if (!S_ISREG(status.st_mode)) return unreadable("it is no regular file");
  return {std::move(descriptor),
          {status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim},
          {},
          {}};
}

bool has_settled(const Stamp& stamp) {
  // The time of files, which no stepped clock sets.
  return std::time(nullptr) > stamp.changed.tv_sec + kSettlingTime;
}

/// Returns nothing after an error of the file system. Stops behind the largest list.
std::optional<std::string> bytes_of(const OpenFile& file) {
  std::string bytes(std::min<std::size_t>(static_cast<std::size_t>(file.stamp.size),
                                          property_list::kLargestList) +
                        1,
                    '\0');
  std::size_t length = 0;
  for (;;) {
    const ssize_t count =
        ::read(file.descriptor.get(), bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    length += static_cast<std::size_t>(count);
    if (count == 0 || length > property_list::kLargestList) break;
    if (length == bytes.size()) bytes.resize(length * 2);
  }
  bytes.resize(length);
  return bytes;
}

property_list::Reading read_again(KnownFile& known, const OpenFile& file) {
  if (file.stamp.size > static_cast<off_t>(property_list::kLargestList))
    return property_list::too_large();
  const auto bytes = bytes_of(file);
  if (!bytes) return {nil, {}, files::last_error().message(), false};
  const std::size_t hash = std::hash<std::string>{}(*bytes);
  if (known.is_parsed && known.hash == hash && known.stamp.size == file.stamp.size)
    return {known.list.get(), {}, known.problem, false};
  known.hash = hash;
  known.is_parsed = true;
  return property_list::read(*bytes);
}

/// Safe to use from any thread.
class PropertyListFiles {
 public:
  /// The list is autoreleased, since another thread may make this forget it.
  objc::Object list_of(const std::string& path, const char* shown) {
    const std::lock_guard lock(mutex_);
    const OpenFile file = open_file(path.c_str());
    note_reading(path, file.shortage);
    if (!file.descriptor && file.problem.empty()) {
      files_.erase(path);
      return nil;
    }
    KnownFile& known = known_file(path);
    if (!file.descriptor) {
      replace(known, {}, {nil, {}, file.problem, false}, shown);
    } else if (!known.is_settled || known.stamp != file.stamp) {
      const auto reading = read_again(known, file);
      replace(known, file.stamp, reading, shown);
    }
    return objc::send<objc::Object>(objc::Ref(known.list).leak(), "autorelease"_sel);
  }

 private:
  KnownFile& known_file(const std::string& path) {
    const auto found = files_.find(path);
    if (found != files_.end()) return found->second;
    if (files_.size() >= kMostFiles || bytes_ > kMostBytes) files_.clear();
    if (files_.empty()) bytes_ = 0;
    return files_[path];
  }

  void replace(KnownFile& known, const Stamp& stamp, const property_list::Reading& reading,
               const char* shown) {
    if (reading.list) bytes_ += static_cast<std::size_t>(stamp.size);
    known.list.reset(reading.list);
    known.stamp = stamp;
    known.is_settled = has_settled(stamp);
    if (known.problem != reading.problem && !reading.problem.empty())
      spdlog::warn("{} is not read: {}", shown, reading.problem);
    known.problem = reading.problem;
  }

  std::map<std::string, KnownFile> files_;
  /// Of all files that were parsed since the last time that the lists were forgotten.
  std::size_t bytes_ = 0;
  std::mutex mutex_;
};

// Never destroyed: its lists must not be released after the runtime has ended.
PropertyListFiles& property_list_files() {
  static auto* const files = new PropertyListFiles;
  return *files;
}

}  // namespace

objc::Object property_list_of_file(NSString path) {
  const char* real = path.fileSystemRepresentation();
  return real ? property_list_files().list_of(real, path.UTF8String()) : nil;
}

}  // namespace host::foundation
