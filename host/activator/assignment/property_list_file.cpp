#include "host/activator/assignment/property_list_file.h"

#include <sys/stat.h>

#include <filesystem>

#include "host/activator/event/strings.h"
#include "host/foundation/device_paths.h"
#include "host/runtime/log.h"
#include "platform/Foundation/NSPropertyListSerialization.h"

namespace host::activator {
namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;

}  // namespace

std::optional<FileStamp> PropertyListFile::stamp() const {
  struct stat found {};
  if (::stat(foundation::path_on_this_machine(path_).c_str(), &found) != 0) return std::nullopt;
  return FileStamp{found.st_ino, found.st_mtim.tv_sec * kNanoseconds + found.st_mtim.tv_nsec,
                   static_cast<std::uint64_t>(found.st_size)};
}

NSDictionary PropertyListFile::read() const {
  std::error_code error;
  if (!std::filesystem::is_regular_file(foundation::path_on_this_machine(path_), error)) return nil;
  try {
    return NSDictionary::dictionaryWithContentsOfFile(to_ns(path_));
  } catch (...) {
    // Foundation's parser raises for some broken files, and returns nil for others.
    return nil;
  }
}

bool PropertyListFile::write(NSDictionary list) const {
  const std::filesystem::path place = foundation::path_on_this_machine(path_);
  std::error_code error;
  std::filesystem::create_directories(place.parent_path(), error);
  const auto data = NSPropertyListSerialization::dataFromPropertyList(
      list, NSPropertyListXMLFormat_v1_0, nullptr);
  if (data && data.writeToFile(to_ns(path_), YES)) return true;
  spdlog::error("{} could not be written", path_);
  return false;
}

void PropertyListFile::set_aside() const {
  const std::filesystem::path place = foundation::path_on_this_machine(path_);
  std::filesystem::path aside = place;
  aside += ".damaged";
  std::error_code error;
  std::filesystem::rename(place, aside, error);
  if (error) {
    spdlog::error("{} is damaged and is not used: {}", path_, error.message());
  } else {
    spdlog::error("{} is damaged: it is kept as {}", path_, aside.filename().string());
  }
}

}  // namespace host::activator
