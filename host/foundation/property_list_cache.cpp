#include "host/foundation/property_list_cache.h"

#include <sys/stat.h>

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <system_error>

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

struct KnownFile {
  files::Stamp stamp;
  bool is_settled = false;
  bool is_parsed = false;
  std::size_t hash = 0;
  objc::Ref<objc::Object> list;
  std::string problem;
};

std::string problem_of(const std::error_code& error) {
  if (error == std::errc::is_a_directory) return "it is a folder";
  return files::is_no_file(error) ? "it is not a regular file" : error.message();
}

/// A look without opening the file, which a poll ten times a second saves. Permissions are part of
/// the stamp, so a file that may no longer be read is opened.
bool is_unchanged(const std::string& path, const KnownFile& known) {
  struct stat status {};
  return known.is_settled && stat(path.c_str(), &status) == 0 &&
         files::stamp_of(status) == known.stamp;
}

property_list::Reading read_again(KnownFile& known, const files::OpenFile& file) {
  if (file.stamp.size > property_list::kLargestList) return property_list::too_large();
  const auto contents = files::read_file(file, property_list::kLargestList);
  if (contents.error == std::errc::file_too_large) return property_list::too_large();
  if (contents.error) return {nil, {}, problem_of(contents.error), false};
  const std::size_t hash = std::hash<std::string>{}(contents.bytes);
  if (known.is_parsed && known.hash == hash && known.stamp.size == file.stamp.size)
    return {known.list.get(), {}, known.problem, false};
  known.hash = hash;
  known.is_parsed = true;
  return property_list::read(contents.bytes);
}

/// Safe to use from any thread.
class PropertyListCache {
 public:
  /// The list is autoreleased, since another thread may make this forget it.
  objc::Object list_of(const std::string& path, const char* shown) {
    const std::lock_guard lock(mutex_);
    if (const auto known = files_.find(path);
        known != files_.end() && is_unchanged(path, known->second))
      return autoreleased(known->second);
    const files::OpenFile file = files::open_file(path);
    note_reading(path, files::is_shortage(file.error) ? file.error : std::error_code());
    if (files::is_missing(file.error)) {
      files_.erase(path);
      return nil;
    }
    KnownFile& known = known_file(path);
    if (file.error) {
      replace(known, {}, {nil, {}, problem_of(file.error), false}, shown);
    } else if (!known.is_settled || known.stamp != file.stamp) {
      const auto reading = read_again(known, file);
      replace(known, file.stamp, reading, shown);
    }
    return autoreleased(known);
  }

 private:
  static objc::Object autoreleased(const KnownFile& known) {
    return objc::send<objc::Object>(objc::Ref(known.list).leak(), "autorelease"_sel);
  }

  KnownFile& known_file(const std::string& path) {
    const auto found = files_.find(path);
    if (found != files_.end()) return found->second;
    if (files_.size() >= kMostFiles || bytes_ > kMostBytes) files_.clear();
    if (files_.empty()) bytes_ = 0;
    return files_[path];
  }

  void replace(KnownFile& known, const files::Stamp& stamp, const property_list::Reading& reading,
               const char* shown) {
    if (reading.list) bytes_ += stamp.size;
    known.list.reset(reading.list);
    known.stamp = stamp;
    known.is_settled = files::has_settled(stamp);
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
PropertyListCache& property_list_cache() {
  static auto* const cache = new PropertyListCache;
  return *cache;
}

}  // namespace

objc::Object property_list_of_file(NSString path) {
  const char* real = path.fileSystemRepresentation();
  return real ? property_list_cache().list_of(real, path.UTF8String()) : nil;
}

}  // namespace host::foundation
