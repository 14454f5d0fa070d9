#include <fileref.h>
#include <tiostream.h>

#include <cstdlib>
#include <string_view>

// Stands for a tag reader with a fault: in every process that loads this library, reading the tags
// of a file with this name is a crash.

namespace {

class DeadlyReader final : public TagLib::FileRef::StreamTypeResolver {
 public:
  TagLib::File* createFile(TagLib::FileName, bool,
                           TagLib::AudioProperties::ReadStyle) const override {
    return nullptr;
  }
  TagLib::File* createFileFromStream(TagLib::IOStream* stream, bool,
                                     TagLib::AudioProperties::ReadStyle) const override {
    if (std::string_view(stream->name()).ends_with("/killer.mp3")) std::abort();
    return nullptr;
  }
};

[[maybe_unused]] const auto* const reader = TagLib::FileRef::addFileTypeResolver(new DeadlyReader);

}  // namespace
