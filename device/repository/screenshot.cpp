#include <fmt/core.h>
#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstdlib>
#include <memory>

// sonavue_screenshot PICTURE WIDTH OUTPUT writes a picture as a JPEG file that is WIDTH pixels
// wide.

namespace {

struct Unreference {
  void operator()(GdkPixbuf* pixbuf) const { g_object_unref(pixbuf); }
};
using Pixbuf = std::unique_ptr<GdkPixbuf, Unreference>;

int failed(const char* path, GError* problem) {
  fmt::print(stderr, "{}: {}\n", path, problem->message);
  g_error_free(problem);
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  constexpr int kWrongUse = 2;
  constexpr int kInProportion = -1;
  const int width = count == 4 ? std::atoi(arguments[2]) : 0;
  if (width <= 0) {
    fmt::print(stderr, "Usage: sonavue_screenshot PICTURE WIDTH OUTPUT\n");
    return kWrongUse;
  }
  GError* problem = nullptr;
  const Pixbuf pixbuf(
      gdk_pixbuf_new_from_file_at_scale(arguments[1], width, kInProportion, TRUE, &problem));
  if (!pixbuf) return failed(arguments[1], problem);
  if (!gdk_pixbuf_save(pixbuf.get(), arguments[3], "jpeg", &problem, "quality", "88", nullptr))
    return failed(arguments[3], problem);
  return 0;
}
