#include <fileref.h>

#include <cstdlib>
#include <string_view>

// Stands for a tag reader with a fault: in every process that loads this library, reading the tags
// of a file with this name is a crash.

namespace {

class DeadlyReader final : public TagLib::FileRef::FileTypeResolver {
 public:
  TagLib::File* createFile(TagLib::FileName name, bool,
                           TagLib::AudioProperties::ReadStyle) const override {
    if (std::string_view(name).ends_with("/killer.mp3")) std::abort();
    return nullptr;
  }
};

[[maybe_unused]] const auto* const reader = TagLib::FileRef::addFileTypeResolver(new DeadlyReader);

}  // namespace
