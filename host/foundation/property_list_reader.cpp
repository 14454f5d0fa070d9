#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <optional>
#include <string>

#include "host/files/folder.h"
#include "host/files/read_file.h"
#include "host/foundation/atomic_write.h"
#include "host/foundation/binary_property_list.h"
#include "host/foundation/exports.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

// Extensions read their settings from the file at every use, and check for changes many times a
// second. The file is read every time, as on the platform, but the same bytes are not parsed again.

namespace host::foundation {
namespace {

// In bytes. Settings are small; larger files are not settings and are not cached.
constexpr off_t kLargestFile = 16 << 10;
constexpr std::size_t kMostFiles = 16;

struct Content {
  std::string bytes;
  timespec changed{};
  ino_t file = 0;

  bool operator==(const Content& other) const {
    return file == other.file && changed.tv_sec == other.changed.tv_sec &&
           changed.tv_nsec == other.changed.tv_nsec && bytes == other.bytes;
  }
};

struct ParsedFile {
  std::string bytes;
  objc::Ref<NSDictionary> dictionary;
};

// Never destroyed: its dictionaries must not be released after the runtime has ended.
std::map<std::string, ParsedFile, std::less<>>& parsed_files() {
  static auto* const files = new std::map<std::string, ParsedFile, std::less<>>;
  return *files;
}

class Descriptor {
 public:
  explicit Descriptor(const char* path) : number_(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return number_; }

 private:
  int number_;
};

/// Returns nothing for anything but a small regular file. Sets `error` when it cannot be opened.
std::optional<Content> content_of(const char* path, std::error_code& error) {
  const Descriptor file(path);
  if (file.get() < 0) error = files::last_error();
  struct stat status {};
  if (file.get() < 0 || fstat(file.get(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode) || status.st_size > kLargestFile) return std::nullopt;
  Content content{std::string(static_cast<std::size_t>(status.st_size), '\0'), status.st_mtim,
                  status.st_ino};
  const ssize_t count = ::read(file.get(), content.bytes.data(), content.bytes.size());
  if (count != status.st_size) return std::nullopt;
  return content;
}

/// False for mutable objects: a caller that changed one would change it for all later readers.
bool can_be_shared(objc::Object object) {
  const auto value = objc::cast<NSObject>(object);
  if (value.isKindOfClass(NSNumber::cls())) return true;
  return value.isKindOfClass(NSString::cls()) &&
         !value.isKindOfClass(objc_getClass("NSMutableString"));
}

bool can_be_shared(NSDictionary dictionary) {
  for (const objc::Object key : dictionary.allKeys().of()) {
    if (!can_be_shared(key) || !can_be_shared(dictionary.objectForKey(key))) return false;
  }
  return true;
}

void keep(std::string path, Content content, NSDictionary dictionary) {
  if (!can_be_shared(dictionary)) return;
  if (parsed_files().size() >= kMostFiles) parsed_files().clear();
  parsed_files()[std::move(path)] = {std::move(content.bytes),
                                     objc::Ref<NSDictionary>::adopt(dictionary.copy())};
}

objc::Imp original_reader = nullptr;

bool is_binary(NSString path) {
  const Descriptor file(path.fileSystemRepresentation());
  char start[8];
  return file.get() >= 0 && ::read(file.get(), start, sizeof start) == sizeof start &&
         is_binary_property_list({start, sizeof start});
}

NSDictionary parse_binary(objc::Object cls, NSString path) {
  const auto data = NSData::dataWithContentsOfFile(path);
  const auto list = objc::cast<NSObject>(
      binary_property_list({static_cast<const char*>(data.bytes()), data.length()}));
  if (!list.isKindOfClass(NSDictionary::cls())) return nil;
  return objc::send<NSDictionary>(cls, "dictionaryWithDictionary:"_sel, list);
}

NSDictionary parse(objc::Object cls, NSString path) {
  if (path && is_binary(path)) return parse_binary(cls, path);
  using Function = objc::Id (*)(objc::Id, objc::Sel, objc::Id);
  const auto function = reinterpret_cast<Function>(original_reader);
  return objc::cast<NSDictionary>(
      objc::Object(function(cls.id(), "dictionaryWithContentsOfFile:"_sel, path.id())));
}

NSDictionary dictionary_with_contents(objc::Object cls, NSString path) {
  const bool is_plain = cls.id() == reinterpret_cast<objc::Id>(NSDictionary::cls());
  if (!is_plain || !path) return parse(cls, path);
  const char* real = path.fileSystemRepresentation();
  std::error_code error;
  auto content = content_of(real, error);
  note_reading(real, files::is_shortage(error) ? error : std::error_code());
  if (!content) return parse(cls, path);
  const auto known = parsed_files().find(std::string_view(real));
  if (known != parsed_files().end() && known->second.bytes == content->bytes)
    return NSDictionary::dictionaryWithDictionary(known->second.dictionary.get());
  const NSDictionary parsed = parse(cls, path);
  // The parser has read the file again. These are the bytes that it parsed only if the file has not
  // changed meanwhile.
  if (parsed && content_of(real, error) == content) keep(real, std::move(*content), parsed);
  return parsed;
}

}  // namespace

void export_property_list_reader() {
  if (original_reader) return;
  const objc::Class dictionaries = objc_getMetaClass("NSDictionary");
  original_reader = method_getImplementation(
      class_getInstanceMethod(dictionaries, "dictionaryWithContentsOfFile:"_sel));
  objc::replace_method<&dictionary_with_contents>(dictionaries, "dictionaryWithContentsOfFile:");
}

}  // namespace host::foundation
