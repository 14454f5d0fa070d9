#include "tests/host/media/deadly_libraries.h"

#include <dlfcn.h>
#include <fileref.h>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <mpv/client.h>
#include <tiostream.h>

namespace {

std::function<void(std::string_view)> reading_hook;

void tell(std::string_view what) {
  if (reading_hook) reading_hook(what);
}

// Asked for each file before the library's own readers.
class TellingResolver final : public TagLib::FileRef::StreamTypeResolver {
 public:
  TagLib::File* createFile(TagLib::FileName name, bool,
                           TagLib::AudioProperties::ReadStyle) const override {
    tell(name);
    return nullptr;
  }
  TagLib::File* createFileFromStream(TagLib::IOStream* stream, bool,
                                     TagLib::AudioProperties::ReadStyle) const override {
    tell(stream->name());
    return nullptr;
  }
};

template <class Function>
Function* next(const char* name, Function*) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

void media_tests::set_reading_hook(std::function<void(std::string_view)> hook) {
  [[maybe_unused]] static const auto* const resolver =
      TagLib::FileRef::addFileTypeResolver(new TellingResolver);
  reading_hook = std::move(hook);
}

// The program's own functions come before those of the libraries.

extern "C" __attribute__((visibility("default"))) gboolean gdk_pixbuf_loader_write(
    GdkPixbufLoader* loader, const guchar* bytes, gsize count, GError** error) {
  tell({reinterpret_cast<const char*>(bytes), count});
  return next("gdk_pixbuf_loader_write", &gdk_pixbuf_loader_write)(loader, bytes, count, error);
}

extern "C" __attribute__((visibility("default"))) int mpv_command_ret(mpv_handle* engine,
                                                                      const char** command,
                                                                      mpv_node* answer) {
  tell(command[1] ? command[1] : "");
  return next("mpv_command_ret", &mpv_command_ret)(engine, command, answer);
}
